<?xml version='1.0' encoding='utf-8'?>
<!DOCTYPE TS>
<TS language="ja_JP" version="2.1">
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
        <name>InterfaceLanguage</name>
        <message>
            <source>The screens are in English from the next start on.</source>
            <translation>画面は次の起動から日本語になります。</translation>
        </message>
        <message>
            <source>The language could not be stored: %1 can't be written.</source>
            <translation>言語を保存できませんでした。%1 に書き込めません。</translation>
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
        <name>ProblemsWindow</name>
        <message>
            <source>Check tutorial</source>
            <translation>チュートリアルの検査</translation>
        </message>
        <message>
            <source>Errors: %1, warnings: %2, remarks: %3</source>
            <translation>エラー %1 件、警告 %2 件、注意 %3 件</translation>
        </message>
        <message>
            <source>No problems.</source>
            <translation>問題は見つかりませんでした。</translation>
        </message>
        <message>
            <source>No tutorial is open.</source>
            <translation>チュートリアルが開かれていません。</translation>
        </message>
    </context>
    <context>
        <name>Recovery</name>
        <message>
            <source>A copy of unsaved changes is damaged. It was kept as %1</source>
            <translation>保存されていない変更の控えが壊れています。次の名前で残しました：%1</translation>
        </message>
        <message>
            <source>Added: %1</source>
            <translation>追加： %1</translation>
        </message>
        <message>
            <source>Changed: %1, %2: %3 -&gt; %4</source>
            <translation>変更： %1、%2： %3 → %4</translation>
        </message>
        <message>
            <source>Changed: items that share an id</source>
            <translation>変更： 同じ ID を持つ項目</translation>
        </message>
        <message>
            <source>Moved: %1</source>
            <translation>移動： %1</translation>
        </message>
        <message>
            <source>No copy of the unsaved changes can be kept in %1. Save more often.</source>
            <translation>保存されていない変更の控えを %1 に書き込めません。こまめに保存してください。</translation>
        </message>
        <message>
            <source>The copy can't be removed from %1</source>
            <translation>控えを %1 から削除できません。</translation>
        </message>
        <message>
            <source>Removed: %1</source>
            <translation>削除： %1</translation>
        </message>
        <message>
            <source>Stale: %1</source>
            <translation>要確認： %1</translation>
        </message>
        <message>
            <source>The copy can't be read as a tutorial.</source>
            <translation>控えをチュートリアルとして読み込めません。</translation>
        </message>
        <message>
            <source>The file is not there any more.</source>
            <translation>ファイルがなくなっています。</translation>
        </message>
        <message>
            <source>The file was changed since then.</source>
            <translation>ファイルはその後に変更されています。</translation>
        </message>
        <message>
            <source>Translation stands: %1</source>
            <translation>確認済みの訳： %1</translation>
        </message>
    </context>
    <context>
        <name>RecoveryDialog</name>
        <message>
            <source>Discard</source>
            <translation>破棄</translation>
        </message>
        <message>
            <source>Do you restore them?</source>
            <translation>復元しますか？</translation>
        </message>
        <message>
            <source>Look</source>
            <translation>違いを見る</translation>
        </message>
        <message>
            <source>Restore</source>
            <translation>復元</translation>
        </message>
        <message>
            <source>The program ended before the changes of this tutorial were saved. A copy of them is there.</source>
            <translation>このチュートリアルの変更を保存する前にプログラムが終了しました。変更の控えが残っています。</translation>
        </message>
        <message>
            <source>Unsaved changes</source>
            <translation>保存されていない変更</translation>
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
        <name>TranslationWindow</name>
        <message>
            <source>All: %1</source>
            <translation>すべて: %1</translation>
        </message>
        <message>
            <source>Export XLIFF</source>
            <translation>XLIFF の書き出し</translation>
        </message>
        <message>
            <source>Export XLIFF...</source>
            <translation>XLIFF を書き出す...</translation>
        </message>
        <message>
            <source>Import XLIFF</source>
            <translation>XLIFF の読み込み</translation>
        </message>
        <message>
            <source>Import XLIFF...</source>
            <translation>XLIFF を読み込む...</translation>
        </message>
        <message>
            <source>Item</source>
            <translation>項目</translation>
        </message>
        <message>
            <source>Missing: %1</source>
            <translation>未訳: %1</translation>
        </message>
        <message>
            <source>Next to do (F3)</source>
            <translation>次の未処理 (F3)</translation>
        </message>
        <message>
            <source>No hint is shown.</source>
            <translation>表示するヒントはありません。</translation>
        </message>
        <message>
            <source>Search:</source>
            <translation>検索:</translation>
        </message>
        <message>
            <source>Stale: %1</source>
            <translation>要確認: %1</translation>
        </message>
        <message>
            <source>Tab, Ctrl+Enter: next cell, next row. F2: into the text. Esc: give up. Ctrl+1, 2, 3: all, missing, stale. Ctrl+F: search. F6: next part.</source>
            <translation>Tab、Ctrl+Enter: 次のセル、次の行　F2: 文字の編集　Esc: 取り消し　Ctrl+1、2、3: すべて、未訳、要確認　Ctrl+F: 検索　F6: 次の部分</translation>
        </message>
        <message>
            <source>The translation stands (F7)</source>
            <translation>訳はこのままでよい (F7)</translation>
        </message>
        <message>
            <source>Translation</source>
            <translation>対訳</translation>
        </message>
        <message>
            <source>missing</source>
            <translation>未訳</translation>
        </message>
        <message>
            <source>same</source>
            <translation>同文</translation>
        </message>
        <message>
            <source>stale</source>
            <translation>要確認</translation>
        </message>
        <message>
            <source>Hints</source>
            <translation>ヒントの一覧</translation>
        </message>
    </context>
    <context>
        <name>TutorialCheck</name>
        <message>
            <source>The jump</source>
            <translation>ジャンプ</translation>
        </message>
        <message>
            <source>The jump after No</source>
            <translation>「いいえ」のジャンプ</translation>
        </message>
        <message>
            <source>%1 leads to the step itself: choose another step, or none.</source>
            <translation>%1の先が自分自身です。別の項目を選ぶか、ジャンプを外してください。</translation>
        </message>
        <message>
            <source>%1 leads to #%2, which is not there: choose a step that is.</source>
            <translation>%1の先 #%2 がありません。存在する項目を選んでください。</translation>
        </message>
        <message>
            <source>%1 leads to the prohibited step #%2, which is passed over: permit it, or choose another.</source>
            <translation>%1の先 #%2 は禁止されているため飛ばされます。許可するか、別の項目を選んでください。</translation>
        </message>
        <message>
            <source>%1 leads to the folder #%2, in which no step is shown: choose another one.</source>
            <translation>%1の先のフォルダー #%2 には表示される項目がありません。別の項目を選んでください。</translation>
        </message>
        <message>
            <source>The jump after No is never taken, since the step asks no question: take it away, or make "yesNo" the condition.</source>
            <translation>質問をしない項目なので「いいえ」のジャンプは使われません。ジャンプを外すか、条件を yesNo にしてください。</translation>
        </message>
        <message>
            <source>No way reaches this step: let a step or a jump lead to it, or prohibit it.</source>
            <translation>この項目に到達する道筋がありません。前の項目かジャンプからつなぐか、禁止してください。</translation>
        </message>
        <message>
            <source>No way reaches the %1 steps from here to #%2: let a step or a jump lead to them, or prohibit them.</source>
            <translation>ここから #%2 までの %1 項目に到達する道筋がありません。前の項目かジャンプからつなぐか、禁止してください。</translation>
        </message>
        <message>
            <source>Since the last save no way reaches this step any more: let a step or a jump lead to it again, or prohibit it.</source>
            <translation>前回の保存の後、この項目に到達する道筋がなくなりました。前の項目かジャンプからつなぎ直すか、禁止してください。</translation>
        </message>
        <message>
            <source>Since the last save no way reaches the %1 steps from here to #%2 any more: let a step or a jump lead to them again, or prohibit them.</source>
            <translation>前回の保存の後、ここから #%2 までの %1 項目に到達する道筋がなくなりました。前の項目かジャンプからつなぎ直すか、禁止してください。</translation>
        </message>
        <message>
            <source>All steps are prohibited, so that learners see none: permit one.</source>
            <translation>すべての項目が禁止されているため、何も表示されません。どれかを許可してください。</translation>
        </message>
        <message>
            <source>No way leads out of the circle of %1: let a jump or an answer lead to a step outside of it.</source>
            <translation>%1 が循環していて、抜け出す道筋がありません。ジャンプや回答の先を循環の外の項目にしてください。</translation>
        </message>
        <message>
            <source>This step leads to itself again, by way of its jump: let the jump lead to another step.</source>
            <translation>この項目はジャンプを経て自分自身に戻ります。ジャンプの先を別の項目にしてください。</translation>
        </message>
        <message>
            <source>The value of "%1" is left out: write a whole number.</source>
            <translation>"%1" の値は無視されます。整数を書いてください。</translation>
        </message>
        <message>
            <source>The value of "%1" is left out: write a text in quotes.</source>
            <translation>"%1" の値は無視されます。引用符で囲んだ文字列を書いてください。</translation>
        </message>
        <message>
            <source>The value of "%1" is left out: write true or false.</source>
            <translation>"%1" の値は無視されます。true か false を書いてください。</translation>
        </message>
        <message>
            <source>The file holds characters that are not UTF-8: write them anew, as UTF-8.</source>
            <translation>UTF-8 でない文字があります。UTF-8 で書き直してください。</translation>
        </message>
        <message>
            <source>What follows the list of steps is left out: take it into the list, or take it away.</source>
            <translation>項目の一覧の後にあるものは無視されます。一覧に入れるか、取り除いてください。</translation>
        </message>
        <message>
            <source>This can't be read as an item, so that all of the item at the top is left out: write it as an item, or take it away.</source>
            <translation>項目として読めないため、最上位の項目ごと無視されます。項目として書き直すか、取り除いてください。</translation>
        </message>
        <message>
            <source>What stands in this item is left out, since it is no folder: write "folder":true, or take it away.</source>
            <translation>フォルダーではないため、この項目の中身は無視されます。"folder":true と書くか、中身を取り除いてください。</translation>
        </message>
        <message>
            <source>"%1" stands twice, and the first one is left out: take one away.</source>
            <translation>"%1" が二つあり、最初のものは無視されます。どちらかを取り除いてください。</translation>
        </message>
        <message>
            <source>A folder has no "%1", so that it is left out: write it at its steps, or take it away.</source>
            <translation>フォルダーに "%1" はないため無視されます。中の項目に書くか、取り除いてください。</translation>
        </message>
        <message>
            <source>A text</source>
            <translation>文字列</translation>
        </message>
        <message>
            <source>The hint is that of #%1: write qsTr("#%2").</source>
            <translation>#%1 のヒントになっています。qsTr("#%2") と書いてください。</translation>
        </message>
        <message>
            <source>The id must be a whole number from 0 up: give the item one of its own.</source>
            <translation>ID は 0 以上の整数でなければなりません。この項目だけの ID を付けてください。</translation>
        </message>
        <message>
            <source>A translation call can't be read (%1): write it as qsTr("#12"), with the id of its step.</source>
            <translation>翻訳の呼び出しが読めません（%1）。項目の ID を使って qsTr("#12") の形で書いてください。</translation>
        </message>
        <message>
            <source>The file holds no list of steps: write "var scenario = [" before them, and "];" after them.</source>
            <translation>項目の一覧がありません。項目の前に「var scenario = [」、後に「];」を書いてください。</translation>
        </message>
        <message>
            <source>The file can't be read from here on (%1): mend what stands here, or just before.</source>
            <translation>ここから先が読めません（%1）。ここか、この直前を直してください。</translation>
        </message>
        <message>
            <source>The translations can't be read from here on (%1): mend the file.</source>
            <translation>ここから先の翻訳が読めません（%1）。ファイルを直してください。</translation>
        </message>
        <message>
            <source>it is not what such a file holds</source>
            <translation>このファイルの形式ではありません</translation>
        </message>
        <message>
            <source>Japanese</source>
            <translation>日本語</translation>
        </message>
        <message>
            <source>English</source>
            <translation>英語</translation>
        </message>
        <message>
            <source>The hint has the same words in both languages: translate it.</source>
            <translation>ヒントが両方の言語で同じです。翻訳してください。</translation>
        </message>
        <message>
            <source>The hint in %1 is %2 pixels high, and its window has room for %3: shorten it, or make two steps of it.</source>
            <translation>%1のヒントの高さは %2 ピクセルですが、ウィンドウには %3 ピクセルしか入りません。短くするか、項目を二つに分けてください。</translation>
        </message>
        <message>
            <source>The hint has changed since it was translated into %1: look at the translation.</source>
            <translation>%1に翻訳した後でヒントが変わりました。翻訳を見直してください。</translation>
        </message>
        <message>
            <source>The name</source>
            <translation>名前</translation>
        </message>
        <message>
            <source>The key of the control</source>
            <translation>コントロールのキー</translation>
        </message>
        <message>
            <source>The condition</source>
            <translation>条件</translation>
        </message>
        <message>
            <source>The name of the icon</source>
            <translation>アイコン名</translation>
        </message>
        <message>
            <source>The command</source>
            <translation>コマンド</translation>
        </message>
        <message>
            <source>%1 holds "%2", with which the saved file could not be read again: write it without.</source>
            <translation>%1に "%2" が含まれるため、保存したファイルを読み直せなくなります。取り除いてください。</translation>
        </message>
        <message>
            <source>This comment holds "%1", so that all from there to the next "*/" is left out: write it without.</source>
            <translation>このコメントに "%1" が含まれるため、そこから次の "*/" までが無視されます。取り除いてください。</translation>
        </message>
        <message>
            <source>Another item has the id #%1, too, so that both are one: give one of them an id of its own.</source>
            <translation>ID #%1 の項目が他にもあり、同じ項目として扱われます。どちらかに別の ID を付けてください。</translation>
        </message>
        <message>
            <source>#%1 has the same name: give one of them another.</source>
            <translation>#%1 と名前が同じです。どちらかを別の名前にしてください。</translation>
        </message>
        <message>
            <source>Only one of x and y has a value: give the step both, or neither for no place.</source>
            <translation>X と Y の片方だけに値があります。両方に値を入れるか、位置が不要なら両方とも外してください。</translation>
        </message>
        <message>
            <source>The place (%1, %2) is on no screen: take it over from the mouse again.</source>
            <translation>位置 (%1, %2) はどの画面にもありません。もう一度マウスから取り込んでください。</translation>
        </message>
        <message>
            <source>The place (%1, %2) is outside of the host editor's window: take it over from the mouse again.</source>
            <translation>位置 (%1, %2) はホストエディターのウィンドウの外です。もう一度マウスから取り込んでください。</translation>
        </message>
        <message>
            <source>No icon is called "%1", so that none is shown: choose one of %2.</source>
            <translation>"%1" というアイコンはないため、何も表示されません。%2 から選んでください。</translation>
        </message>
        <message>
            <source>The host editor has not reported "%1" since the program was started: see whether the key is right, or open the window that the control is in.</source>
            <translation>プログラムの起動後、ホストエディターから "%1" の報告がありません。キーが正しいか確かめるか、コントロールのあるウィンドウを開いてください。</translation>
        </message>
        <message>
            <source>There is no hint: write one, or a blank if none is to be shown.</source>
            <translation>ヒントがありません。ヒントを書くか、表示しない場合は空白を一つ入れてください。</translation>
        </message>
        <message>
            <source>The hint is missing in %1: write it.</source>
            <translation>%1のヒントがありません。書いてください。</translation>
        </message>
        <message>
            <source>No hint is there in %1 yet: translate them for learners who read it.</source>
            <translation>%1のヒントがまだ一つもありません。その言語で学ぶ人のために翻訳してください。</translation>
        </message>
        <message>
            <source>The map needs Graphviz, which is not there: install it, or have the map written to a file whose name ends in .dot.</source>
            <translation>マップを描くには Graphviz が必要です。インストールするか、名前が .dot で終わるファイルに書き出してください。</translation>
        </message>
        <message>
            <source>Graphviz was stopped after a minute: the tutorial is too large for a map.</source>
            <translation>1 分待っても Graphviz が終わらないので止めました。マップにするには大きすぎます。</translation>
        </message>
        <message>
            <source>Graphviz could not draw the map: %1</source>
            <translation>Graphviz がマップを描けませんでした: %1</translation>
        </message>
        <message>
            <source>Start</source>
            <translation>開始</translation>
        </message>
        <message>
            <source>End</source>
            <translation>終了</translation>
        </message>
        <message>
            <source>(no step)</source>
            <translation>(項目なし)</translation>
        </message>
        <message>
            <source>Yes</source>
            <translation>はい</translation>
        </message>
        <message>
            <source>No</source>
            <translation>いいえ</translation>
        </message>
        <message>
            <source>steps: %1, ways: %2, ends: %3</source>
            <translation>項目: %1、道筋: %2、終わり: %3</translation>
        </message>
        <message>
            <source>problems: %1</source>
            <translation>問題: %1</translation>
        </message>
        <message>
            <source>steps: %1, shown: %2, reached: %3</source>
            <translation>項目: %1、表示: %2、到達: %3</translation>
        </message>
        <message>
            <source>reached by no way: %1</source>
            <translation>到達しない項目: %1</translation>
        </message>
        <message>
            <source>ways: %1</source>
            <translation>道筋: %1</translation>
        </message>
        <message>
            <source>longest way, with %1 different steps: %2</source>
            <translation>最長の道筋、異なる項目 %1 個: %2</translation>
        </message>
        <message>
            <source>circle: %1</source>
            <translation>循環: %1</translation>
        </message>
        <message>
            <source>circle that no way leaves: %1</source>
            <translation>抜け出せない循環: %1</translation>
        </message>
        <message>
            <source>and %1 more circles</source>
            <translation>ほかに循環が %1 個</translation>
        </message>
        <message>
            <source>and %1 more ends</source>
            <translation>ほかに終わりが %1 個</translation>
        </message>
        <message>
            <source>end: #%1 %2, shortest way, with %3 steps: %4</source>
            <translation>終わり: #%1 %2、最短の道筋、項目 %3 個: %4</translation>
        </message>
        <message>
            <source>No entry is called "%1", so that it is left out: correct its name, or take it away.</source>
            <translation>"%1" というキーはないため無視されます。キー名を直すか、取り除いてください。</translation>
        </message>
    </context>
    <context>
        <name>TutorialEditor::Manager</name>
        <message>
            <source>Failed to save.</source>
            <translation>保存に失敗しました。</translation>
        </message>
        <message>
            <source>It is larger than %1 MiB: %2</source>
            <translation>%1 MiB を超えています: %2</translation>
        </message>
        <message>
            <source>It is no file: %1</source>
            <translation>ファイルではありません: %1</translation>
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
        <message>
            <source>%1, with all in it: %2 can't be read</source>
            <translation>%1とその中のすべて：%2を読み取れません</translation>
        </message>
        <message>
            <source>%1 can't be read</source>
            <translation>%1を読み取れません</translation>
        </message>
        <message>
            <source>entry %1</source>
            <translation>%1番目の要素</translation>
        </message>
        <message>
            <source>%1: another item has the same id</source>
            <translation>%1：IDがほかの項目と重複しています</translation>
        </message>
        <message>
            <source>%1: what stands in it, for it is no folder</source>
            <translation>%1：フォルダーではないため、中の項目は残りません</translation>
        </message>
        <message>
            <source>%1: the value of "%2"</source>
            <translation>%1：「%2」の値</translation>
        </message>
        <message>
            <source>Characters that are not UTF-8</source>
            <translation>UTF-8ではない文字</translation>
        </message>
        <message>
            <source>What follows the steps</source>
            <translation>ステップの後に続く内容</translation>
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
        <message>
            <source>Coordinates</source>
            <translation>座標</translation>
        </message>
        <message>
            <source>Events</source>
            <translation>イベント</translation>
        </message>
    </context>
    <context>
        <name>StepSpeech</name>
        <message>
            <source>Click</source>
            <translation>クリック</translation>
        </message>
        <message>
            <source>Double-click</source>
            <translation>ダブルクリック</translation>
        </message>
        <message>
            <source>Right-click</source>
            <translation>右クリック</translation>
        </message>
        <message>
            <source>Look</source>
            <translation>見る</translation>
        </message>
        <message>
            <source>Wait</source>
            <translation>待つ</translation>
        </message>
        <message>
            <source>Use the keyboard</source>
            <translation>キーボードを使う</translation>
        </message>
        <message>
            <source>The arrow points at %1</source>
            <translation>矢印の先: %1</translation>
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
        <message>
            <source>"%1" is not taken: with "%2" in it, the saved tutorial could not be opened again.</source>
            <translation>「%1」は使えません。「%2」を含むと、保存したチュートリアルを開けなくなります。</translation>
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
            <source>%1 is there already.</source>
            <translation>%1 はすでにあります。</translation>
        </message>
        <message>
            <source>%1 is not there any more.</source>
            <translation>%1 はもうありません。</translation>
        </message>
        <message>
            <source>Failed to read %1.</source>
            <translation>%1 を読めませんでした。</translation>
        </message>
        <message>
            <source>Failed to save translation.</source>
            <translation>翻訳のセーブに失敗しました。</translation>
        </message>
        <message>
            <source>Failed to write %1.</source>
            <translation>%1 に書き込めませんでした。</translation>
        </message>
        <message>
            <source>Not stale any more: %1</source>
            <translation>確認済み: %1</translation>
        </message>
        <message>
            <source>Not translated: %1</source>
            <translation>翻訳なし: %1</translation>
        </message>
        <message>
            <source>Skipped, for there is no such item: %1</source>
            <translation>該当する項目がないため省略: %1</translation>
        </message>
        <message>
            <source>Stale, for the text to be translated has changed: %1</source>
            <translation>原文が変わったため要確認: %1</translation>
        </message>
        <message>
            <source>Taken over changes of yours: %1</source>
            <translation>こちらの変更に上書き: %1</translation>
        </message>
        <message>
            <source>Taken: %1</source>
            <translation>取り込み: %1</translation>
        </message>
        <message>
            <source>The file can't be read as XLIFF.</source>
            <translation>ファイルを XLIFF として読めません。</translation>
        </message>
        <message>
            <source>The file holds no hint of this tutorial.</source>
            <translation>ファイルにこのチュートリアルのヒントがありません。</translation>
        </message>
        <message>
            <source>The file is a translation from %1 to %2.</source>
            <translation>ファイルは %1 から %2 への翻訳です。</translation>
        </message>
        <message>
            <source>The hints can't be read, and nothing is saved until they can:
%1</source>
            <translation>ヒントを読み込めません。読み込めるようになるまで保存できません:
%1</translation>
        </message>
        <message>
            <source>The program "lconvert" does not come to an end.</source>
            <translation>プログラム「lconvert」が終了しません。</translation>
        </message>
        <message>
            <source>The program "lconvert" is not there. It belongs to Qt's tools (qttools5-dev-tools).</source>
            <translation>プログラム「lconvert」がありません。Qt のツール (qttools5-dev-tools) に含まれています。</translation>
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
        <message>
            <source>and %1 more</source>
            <translation>ほか%1件</translation>
        </message>
        <message>
            <source>The file holds what the tutorial leaves out:</source>
            <translation>ファイルの次の内容はチュートリアルに取り込めませんでした：</translation>
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
            <source>There are problems in this folder.</source>
            <translation>このフォルダーの中に問題があります。</translation>
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
        <message>
            <source>empty</source>
            <translation>未入力</translation>
        </message>
        <message>
            <source>Move up</source>
            <translation>上へ移動</translation>
        </message>
        <message>
            <source>Move down</source>
            <translation>下へ移動</translation>
        </message>
        <message>
            <source>Move into the folder</source>
            <translation>フォルダーの中へ移動</translation>
        </message>
        <message>
            <source>Move out of the folder</source>
            <translation>フォルダーの外へ移動</translation>
        </message>
        <message>
            <source>Prohibit or permit (Space)</source>
            <translation>禁止または許可（Space）</translation>
        </message>
        <message>
            <source>Track this window</source>
            <translation>このウィンドウを追跡</translation>
        </message>
    </context>
    <context>
        <name>TutorialSideViewStep0</name>
        <message>
            <source>#2</source>
            <translation>ようこそ！
このツアーでは、目の前の小さなお絵かきエディタをご案内します。三分ほどで終わります。
「次へ」を押して始めましょう。</translation>
        </message>
        <message>
            <source>#3</source>
            <translation>まずウィンドウをひと回り見てみますか？
「いいえ」を押すと、すぐに描き始めます。</translation>
        </message>
        <message>
            <source>#4</source>
            <translation>ここに道具が並んでいます。色の付いているものが、今マウスで使える道具です。</translation>
        </message>
        <message>
            <source>#5</source>
            <translation>ここがキャンバスです。絵はここに描いていきます。</translation>
        </message>
        <message>
            <source>#6</source>
            <translation>図形をひとつ描くたびに、このリストに一行増えます。</translation>
        </message>
        <message>
            <source>#7</source>
            <translation>選択した図形の名前、線の太さ、レイヤーがここに表示されます。あとで三つとも変えてみましょう。</translation>
        </message>
        <message>
            <source>#9</source>
            <translation>さあ、描いてみましょう。
「Rectangle」をクリックして、四角形の道具を選んでください。</translation>
        </message>
        <message>
            <source>#10</source>
            <translation>ここで左ボタンを押し、そのまま右下へドラッグして、ボタンを離してください。</translation>
        </message>
        <message>
            <source>#11</source>
            <translation>四角形が描けました！次は「Ellipse」をクリックしてください。</translation>
        </message>
        <message>
            <source>#12</source>
            <translation>もう一度ドラッグします。今度は四角形の下に描いてください。</translation>
        </message>
        <message>
            <source>#13</source>
            <translation>お見事です！少しのあいだ、できた絵を眺めてみましょう。</translation>
        </message>
        <message>
            <source>#14</source>
            <translation>二つの図形がキャンバスに見えていますか？</translation>
        </message>
        <message>
            <source>#15</source>
            <translation>大丈夫、もう一度描いてみましょう。
ドラッグのあいだは、ボタンを押したままにするのがコツです。</translation>
        </message>
        <message>
            <source>#17</source>
            <translation>一行目をクリックして、四角形を選択してください。</translation>
        </message>
        <message>
            <source>#18</source>
            <translation>次は同じ行をダブルクリックしてください。カーソルが名前の欄に移ります。</translation>
        </message>
        <message>
            <source>#19</source>
            <translation>好きな名前を三文字以上で入力してください。</translation>
        </message>
        <message>
            <source>#20</source>
            <translation>線をもっと太くしましょう。太さを 6 にしてください。</translation>
        </message>
        <message>
            <source>#21</source>
            <translation>「Front」を選んでください。図形がほかの図形の手前に来ます。</translation>
        </message>
        <message>
            <source>#22</source>
            <translation>図形は動かすこともできます。「Select」をクリックしてください。</translation>
        </message>
        <message>
            <source>#23</source>
            <translation>四角形をマウスでつかんで、別の場所までドラッグしてください。</translation>
        </message>
        <message>
            <source>#25</source>
            <translation>グリッドがあると位置を揃えやすくなります。ここにチェックを入れてください。</translation>
        </message>
        <message>
            <source>#26</source>
            <translation>設定も見てみますか？
「いいえ」を押すと、この部分を飛ばします。</translation>
        </message>
        <message>
            <source>#27</source>
            <translation>「View」メニューを開いてください。</translation>
        </message>
        <message>
            <source>#28</source>
            <translation>「Settings」を選んでください。</translation>
        </message>
        <message>
            <source>#29</source>
            <translation>キャンバスを温かみのある色にしましょう。「Cream」を選んでください。</translation>
        </message>
        <message>
            <source>#30</source>
            <translation>「OK」をクリックして、設定を閉じてください。</translation>
        </message>
        <message>
            <source>#32</source>
            <translation>最後にもうひとつ。ここを右クリックしてください。</translation>
        </message>
        <message>
            <source>#33</source>
            <translation>「Duplicate」を選ぶと、選択中の図形のコピーができます。</translation>
        </message>
        <message>
            <source>#34</source>
            <translation>これで一通りおしまいです。楽しく描いてください！
「次へ」を押すとツアーを終わります。</translation>
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
            <source>Translation</source>
            <translation>対訳</translation>
        </message>
        <message>
            <source>Tutorial &amp;event</source>
            <translation>チュートリアルイベント(&amp;E)</translation>
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
            <source>Check tutorial</source>
            <translation>チュートリアルの検査</translation>
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
        <message>
            <source>It goes from the file with this save. Do you save all the same?</source>
            <translation>保存するとファイルから失われます。それでも保存しますか？</translation>
        </message>
        <message>
            <source>The file was changed by someone else since it was opened.
Yes writes over it. No opens it again, without your changes.</source>
            <translation>開いた後に、ファイルがほかで変更されました。
「はい」で上書きします。「いいえ」で変更を破棄して開き直します。</translation>
        </message>
        <message>
            <source>Move up</source>
            <translation>上へ移動</translation>
        </message>
        <message>
            <source>Move down</source>
            <translation>下へ移動</translation>
        </message>
        <message>
            <source>Move into the folder</source>
            <translation>フォルダーの中へ移動</translation>
        </message>
        <message>
            <source>Move out of the folder</source>
            <translation>フォルダーの外へ移動</translation>
        </message>
        <message>
            <source>Prohibit or permit (Space)</source>
            <translation>禁止または許可（Space）</translation>
        </message>
        <message>
            <source>Lan&amp;guage</source>
            <translation>言語 (Language)(&amp;G)</translation>
        </message>
    </context>
    <context>
        <name>TreeListItem</name>
        <message>
            <source>Level %1</source>
            <translation>レベル %1</translation>
        </message>
        <message>
            <source>open</source>
            <translation>開いています</translation>
        </message>
        <message>
            <source>closed</source>
            <translation>閉じています</translation>
        </message>
        <message>
            <source>prohibited</source>
            <translation>禁止</translation>
        </message>
    </context>
    <context>
        <name>TreeListRenameField</name>
        <message>
            <source>Name</source>
            <translation>名前</translation>
        </message>
    </context>
    <context>
        <name>TreeListProhibition</name>
        <message>
            <source>Prohibited</source>
            <translation>禁止</translation>
        </message>
    </context>
    <context>
        <name>SplitView</name>
        <message>
            <source>Divider</source>
            <translation>仕切り</translation>
        </message>
    </context>
    <context>
        <name>ProblemRow</name>
        <message>
            <source>Error</source>
            <translation>エラー</translation>
        </message>
        <message>
            <source>Warning</source>
            <translation>警告</translation>
        </message>
        <message>
            <source>Remark</source>
            <translation>注意</translation>
        </message>
    </context>
    <context>
        <name>ProblemList</name>
        <message>
            <source>Problems</source>
            <translation>問題の一覧</translation>
        </message>
    </context>
</TS>
