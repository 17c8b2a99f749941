<?xml version='1.0' encoding='utf-8'?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
    <context>
        <name>AlertDialog</name>
        <message>
            <source>Warning</source>
            <translation>警告</translation>
        </message>
    </context>
    <context>
        <name>ConfirmDialog</name>
        <message>
            <source>Are you sure?</source>
            <translation>よろしいですか？</translation>
        </message>
        <message>
            <source>Confirmation</source>
            <translation>確認</translation>
        </message>
    </context>
    <context>
        <name>NameChangeDialog</name>
        <message>
            <source>There is the same tutorial item name.
Change %2 to %1 ?</source>
            <translation>同じ名前のチュートリアル項目があります。
%2 を %1 に変更しますか？</translation>
        </message>
        <message>
            <source>Tutorial item name change</source>
            <translation>チュートリアル項目名の変更</translation>
        </message>
    </context>
    <context>
        <name>SaveChangeDialog</name>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Save project</source>
            <translation>プロジェクトの保存</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
    </context>
    <context>
        <name>TutorialEditor::Manager</name>
        <message>
            <source>Failed to save.</source>
            <translation>保存に失敗しました。</translation>
        </message>
        <message>
            <source>Tutorial not loaded yet.</source>
            <translation>チュートリアルがまだ読み込まれていません。</translation>
        </message>
        <message>
            <source>folder</source>
            <translation>フォルダー</translation>
        </message>
        <message>
            <source>item</source>
            <translation>項目</translation>
        </message>
    </context>
    <context>
        <name>TutorialEventDialog</name>
        <message>
            <source>Clear</source>
            <translation>クリア</translation>
        </message>
        <message>
            <source>Tracking control</source>
            <translation>追跡中のコントロール</translation>
        </message>
        <message>
            <source>Tutorial event</source>
            <translation>チュートリアルイベント</translation>
        </message>
    </context>
    <context>
        <name>TutorialIndicator</name>
        <message>
            <source>Next</source>
            <translation>次へ</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
    </context>
    <context>
        <name>TutorialItemListModel</name>
        <message>
            <source>/</source>
            <translation>/</translation>
        </message>
        <message>
            <source>item</source>
            <translation>項目</translation>
        </message>
    </context>
    <context>
        <name>TutorialList</name>
        <message>
            <source>Side-view</source>
            <translation>サイドビュー</translation>
        </message>
        <message>
            <source>Step 1: Side-view Basics</source>
            <translation>ステップ１：サイドビューの基本</translation>
        </message>
        <message>
            <source>Step 1: Top-view Basics</source>
            <translation>ステップ１：トップビューの基本</translation>
        </message>
        <message>
            <source>Top-view</source>
            <translation>トップビュー</translation>
        </message>
    </context>
    <context>
        <name>TutorialManager</name>
        <message>
            <source>Failed to save translation.</source>
            <translation>翻訳のセーブに失敗しました。</translation>
        </message>
        <message>
            <source>folder</source>
            <translation>フォルダー</translation>
        </message>
        <message>
            <source>not closed %1: </source>
            <translation>%1 が閉じられていません: </translation>
        </message>
        <message>
            <source>not found %1 or %2: </source>
            <translation>%1 または %2 が見つかりません: </translation>
        </message>
        <message>
            <source>not matched %1...%2: </source>
            <translation>%1...%2 の対応が取れていません: </translation>
        </message>
        <message>
            <source>unable to parse as string: </source>
            <translation>文字列として解析できません: </translation>
        </message>
        <message>
            <source>unterminated "...": </source>
            <translation>"..." が閉じられていません: </translation>
        </message>
    </context>
    <context>
        <name>TutorialSelectDialog</name>
        <message>
            <source>Open tutorial</source>
            <translation>チュートリアルを開く</translation>
        </message>
        <message>
            <source>Tutorial file</source>
            <translation>チュートリアルファイル</translation>
        </message>
    </context>
    <context>
        <name>TutorialSettingItem</name>
        <message>
            <source>(Next)</source>
            <translation>(次の項目)</translation>
        </message>
        <message>
            <source>&lt;=</source>
            <translation>&lt;=</translation>
        </message>
        <message>
            <source>Add folder</source>
            <translation>フォルダーを追加</translation>
        </message>
        <message>
            <source>Add item</source>
            <translation>項目を追加</translation>
        </message>
        <message>
            <source>Command:</source>
            <translation>コマンド:</translation>
        </message>
        <message>
            <source>Condition:</source>
            <translation>条件:</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>コピー</translation>
        </message>
        <message>
            <source>Cut</source>
            <translation>切り取り</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Hint:</source>
            <translation>ヒント:</translation>
        </message>
        <message>
            <source>Icon:</source>
            <translation>アイコン:</translation>
        </message>
        <message>
            <source>Jump(No):</source>
            <translation>ジャンプ(いいえ):</translation>
        </message>
        <message>
            <source>Jump:</source>
            <translation>ジャンプ:</translation>
        </message>
        <message>
            <source>Paste</source>
            <translation>貼り付け</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Settings</source>
            <translation>設定</translation>
        </message>
        <message>
            <source>Show arrow</source>
            <translation>矢印を表示</translation>
        </message>
        <message>
            <source>The tutorial is needed to be reloaded to apply the translation.
Do you save tutorial?</source>
            <translation>翻訳を反映するには、チュートリアルを読み込み直す必要があります。
チュートリアルを保存しますか？</translation>
        </message>
        <message>
            <source>Track:</source>
            <translation>追跡:</translation>
        </message>
        <message>
            <source>Translation:</source>
            <translation>翻訳:</translation>
        </message>
        <message>
            <source>Tutorial item list</source>
            <translation>チュートリアル項目一覧</translation>
        </message>
        <message>
            <source>Tutorial item menu</source>
            <translation>チュートリアル項目メニュー</translation>
        </message>
        <message>
            <source>X:</source>
            <translation/>
        </message>
        <message>
            <source>Y:</source>
            <translation>Y:</translation>
        </message>
    </context>
    <context>
        <name>TutorialSideViewStep1</name>
        <message>
            <source>#1</source>
            <translation>これはサイドビューチュートリアルのダミーです。</translation>
        </message>
        <message>
            <source>#2</source>
            <translation>終わりです。</translation>
        </message>
    </context>
    <context>
        <name>TutorialTopViewStep1</name>
        <message>
            <source>#1</source>
            <translation>これはトップビューチュートリアルのダミーです。</translation>
        </message>
        <message>
            <source>#2</source>
            <translation>終わりです。</translation>
        </message>
    </context>
    <context>
        <name>UndoRedo</name>
        <message>
            <source>&amp;Redo</source>
            <translation>やり直し(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation/>
        </message>
        <message>
            <source>Command List</source>
            <translation>コマンド一覧</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>&amp;Add folder</source>
            <translation>フォルダーを追加(&amp;A)</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>編集(&amp;E)</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>ファイル(&amp;F)</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>ヘルプ(&amp;H)</translation>
        </message>
        <message>
            <source>&amp;License</source>
            <translation>ライセンス(&amp;L)</translation>
        </message>
        <message>
            <source>&amp;Open tutorial</source>
            <translation>チュートリアルを開く(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>やり直し(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation/>
        </message>
        <message>
            <source>&amp;Version</source>
            <translation>バージョン情報(&amp;V)</translation>
        </message>
        <message>
            <source>-</source>
            <translation/>
        </message>
        <message>
            <source>Close tutorial</source>
            <translation>チュートリアルを閉じる</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>コピー</translation>
        </message>
        <message>
            <source>Create &amp;item</source>
            <translation>項目を作成(&amp;I)</translation>
        </message>
        <message>
            <source>Cut</source>
            <translation>切り取り</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Exit</source>
            <translation>終了</translation>
        </message>
        <message>
            <source>Failed to open new project</source>
            <translation>新しいプロジェクトを開けませんでした。</translation>
        </message>
        <message>
            <source>Failed to save project.</source>
            <translation>プロジェクトの保存に失敗しました。</translation>
        </message>
        <message>
            <source>License</source>
            <translation>ライセンス</translation>
        </message>
        <message>
            <source>Open tutorial folder</source>
            <translation>チュートリアルフォルダーを開く</translation>
        </message>
        <message>
            <source>Paste</source>
            <translation>貼り付け</translation>
        </message>
        <message>
            <source>Save change?</source>
            <translation>変更を保存しますか？</translation>
        </message>
        <message>
            <source>Save tutorial</source>
            <translation>チュートリアルを保存</translation>
        </message>
        <message>
            <source>Start current</source>
            <translation>現在の項目から開始</translation>
        </message>
        <message>
            <source>Start tutorial</source>
            <translation>チュートリアルを開始</translation>
        </message>
        <message>
            <source>Tutorial Editor</source>
            <translation>チュートリアルエディター</translation>
        </message>
        <message>
            <source>Tutorial editor</source>
            <translation>チュートリアルエディター</translation>
        </message>
        <message>
            <source>Version:</source>
            <translation>バージョン:</translation>
        </message>
    </context>
</TS>
