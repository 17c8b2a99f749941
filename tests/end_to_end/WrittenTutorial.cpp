#include "WrittenTutorial.h"

#include <QByteArrayList>

namespace
{
using namespace WrittenTutorial;

// The wait, the last one in its folder at first, is dragged to its place.
const QVector<Folder> kFolders = {
    { 1,
      "Start \"here\"",
      {
          { 2, "hello", "MainWindow", 184, 150, "eye", "click", "ようこそ！", "Welcome!" },
          { 3, "ask", "MainWindow", 184, 150, "click", "yesNo", "中を見ますか？", "Look <round> & \"in\"?", false,
            kNone, 10 },
          { 8, "wait", "", kNowhere, kNowhere, "wait", "wait,400", "少々お待ちください。", "One moment.", true },
          { 4, "tools", "MainWindow/toolSelect", 6, -117, "eye", "click", "道具です。", "The tools.", true },
          { 5, "canvas", "MainWindow/canvas", 162, 17, "eye", "click", "キャンバス", "Canvas", true, kNone, kNone,
            true },
          { 6, "list", "MainWindow/objectList", 32, -93, "eye", "click", "一覧は\n左です。", "The list\nat the left.",
            true },
          { 7, "fields", "MainWindow/nameField", 72, -119, "eye", "click", "名前", "Names", true, 17 },
      } },
    { 9,
      "Draw 100% \\ %1",
      {
          { 10, "tool", "MainWindow/toolRectangle", 6, -117, "click", "action,toolRectangle", "四角", "Box", true },
          { 11, "draw", "MainWindow/canvas", 22, -73, "click", "mouseEvent,MainWindow/canvas,drag", "描く", "Draw",
            true },
          { 12, "select", "MainWindow/objectList", 22, -120, "click", "list,MainWindow/objectList,0", "選ぶ", "Select",
            true },
          { 13, "name", "MainWindow/nameField", 72, -119, "keyboard", "textLength,MainWindow/nameField,3", "名付ける",
            "Name it", true },
          { 14, "grid", "MainWindow/gridCheck", -28, -121, "click", "checked,MainWindow/gridCheck,true", "格子", "Grid",
            true },
          { 15, "layer", "MainWindow/layerCombo", 72, -119, "click", "comboBox,MainWindow/layerCombo,1", "レイヤー",
            "Layer", true },
          { 16, "back", "MainWindow", 184, 150, "eye", "click", "もう一度", "Once more", false, 3 },
          { 17, "goodbye", "MainWindow", 184, 150, "eye", "click", "おわり", "The end" },
      } },
};

QByteArray quoted(const char *text)
{
    return '"' + QByteArray(text).replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

QByteArray itemText(int id, const char *name, bool folder)
{
    return "{\n\"id\":" + QByteArray::number(id) + ",\n\"name\":" + quoted(name)
        + ",\n\"folder\":" + (folder ? "true" : "false") + ",\n";
}

QByteArray contextBegin()
{
    return "    <context>\n        <name>TutorialSideViewStep0</name>\n";
}
} // namespace

const QVector<Folder> &WrittenTutorial::folders()
{
    return kFolders;
}

QByteArray WrittenTutorial::scenario()
{
    const auto flag = [](bool value) { return QByteArray(value ? "true" : "false"); };
    QByteArrayList folderTexts;
    for (const Folder &folder : kFolders) {
        QByteArrayList steps;
        for (const Step &step : folder.steps) {
            steps.append("        " + itemText(step.id, step.name, false) + "\"x\":" + QByteArray::number(step.x)
                         + ",\n\"y\":" + QByteArray::number(step.y) + ",\n\"windowKey\":" + quoted(step.windowKey)
                         + ",\n\"condition\":" + quoted(step.condition) + ",\n\"hint\":qsTr(\"#"
                         + QByteArray::number(step.id) + "\"),\n\"icon\":" + quoted(step.icon) + ",\n\"jump\":"
                         + QByteArray::number(step.jump) + ",\n\"jumpNo\":" + QByteArray::number(step.jumpNo)
                         + ",\n\"command\":\"\",\n\"showArrow\":" + flag(step.showArrow)
                         + ",\n\"prohibited\":" + flag(step.prohibited) + "        \n        }");
        }
        folderTexts.append("    " + itemText(folder.id, folder.name, true) + "\"children\":[\n" + steps.join(",\n")
                           + "\n]    \n    }");
    }
    return "var scenario = [\n" + folderTexts.join(",\n") + "\n];";
}

QByteArray WrittenTutorial::withoutHints(QByteArray translations)
{
    const QByteArray end = "    </context>\n";
    const int begin = translations.indexOf(contextBegin());
    return translations.remove(begin, translations.indexOf(end, begin) + end.size() - begin);
}

QByteArray WrittenTutorial::withHints(const QByteArray &original, const char *Step::*hint)
{
    QByteArray translations = withoutHints(original);
    QByteArray context = contextBegin();
    for (const Folder &folder : kFolders) {
        for (const Step &step : folder.steps)
            context += "        <message>\n            <source>#" + QByteArray::number(step.id)
                + "</source>\n            <translation>"
                + QByteArray(step.*hint).replace('&', "&amp;").replace('<', "&lt;")
                + "</translation>\n        </message>\n";
    }
    return translations.insert(translations.indexOf("</TS>"), context + "    </context>\n");
}
