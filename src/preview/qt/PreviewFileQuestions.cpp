#include "preview/qt/PreviewFileQuestions.h"

#include "preview/BrowserPreviews.h"
#include "text/qt/QtText.h"

#include <QFileInfo>

namespace tintora {

namespace {

QString BrowserTitle() { return QStringLiteral("Locate Preview Browser"); }
QString DocumentTitle() { return QStringLiteral("Locate Preview Document"); }

Text FirstOf(const Texts& paths) { return paths.empty() ? Text() : paths.front(); }

}  // namespace

Text PreviewFileQuestions::LocateFile(TextView filter) {
    if (filter == ProgramFilter)
        return LocateBrowser(&window_);
    return FirstOf(Ask({.title = DocumentTitle(), .filters = ToQString(filter)}, documentFolder_, &window_));
}

Text PreviewFileQuestions::LocateBrowser(QWidget* parent) {
    return FirstOf(Ask({.title = BrowserTitle(), .kind = FilesWanted::Kind::Programs}, browserFolder_, parent));
}

Texts PreviewFileQuestions::LocateDocuments(QWidget* parent) {
    return Ask({.title = DocumentTitle(), .filters = ToQString(PreviewDocumentFilters), .isSeveral = true},
               documentFolder_, parent);
}

Texts PreviewFileQuestions::Ask(FilesWanted wanted, QString& folder, QWidget* parent) {
    wanted.folder = folder;
    Texts paths;
    for (const QString& path : ask_(wanted, parent)) {
        paths.push_back(ToText(path));
        folder = QFileInfo(path).absolutePath();
    }
    return paths;
}

}  // namespace tintora
