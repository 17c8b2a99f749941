// A scenario file under the check: all rules, the walk, and the lines that they name.

#include "check/StepGraph.h"
#include "check/TutorialCheck.h"
#include "check/TutorialFiles.h"
#include "check/Walk.h"
#include "check/WalkReport.h"
#include "FuzzTarget.h"
#include "support/DocumentFakes.h"
#include "support/FileBytes.h"
#include "TutorialEditor/Manager.h"

#include <QTemporaryDir>

#include <algorithm>

using FuzzTarget::require;

namespace
{
/// Whether the program itself takes all of the file.
bool isKept(const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("a.js"));
    const FakeContext context;
    writeAll(path, bytes);
    TutorialEditor::Manager manager;
    return manager.setContents(path).isEmpty() && manager.isLoaded() && manager.leftOut().isEmpty();
}

/// Whether it is about a tutorial that can be read, as a whole.
bool isAboutAll(const Problem &problem)
{
    return problem.rule == QLatin1String("no-step");
}

/// A host editor that knows little, and hints of two languages.
CheckSubject knownSubject(const TutorialFiles &files)
{
    CheckSubject subject = files.subject();
    subject.languages = { { QStringLiteral("ja_JP"), QString(), &TutorialItemData::mHint },
                          { QStringLiteral("en_US"), QString(), &TutorialItemData::mHint2 } };
    subject.staleIds = { 1, 2 };
    subject.isHostKnown = true;
    subject.reportedPlaces.insert(QString(), QPoint(1, 1));
    subject.hostRect = QRect(0, 0, 100, 100);
    return subject;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = FuzzTarget::bytesOf(data, size);
    TutorialFiles files;
    files.readBytes(QStringLiteral("a.js"), bytes);
    const QVector<Problem> problems = files.problems();
    require(isKept(bytes) || !problems.isEmpty(), "what is refused or left out is told");
    const int lines = int(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
    for (const Problem &problem : problems)
        require(problem.line <= lines && (problem.line >= 1 || isAboutAll(problem)),
                "a problem has a line of the file");

    TutorialCheck::check(knownSubject(files));
    const StepGraph graph(*files.subject().document);
    WalkReport::text(graph, Walk(graph));
    return 0;
}
