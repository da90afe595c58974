#include "preview/qt/SystemBrowsers.h"

#include "text/qt/QtText.h"

#include <QDir>

namespace tintora {

namespace {

Text Variable(const char* name) { return ToText(qEnvironmentVariable(name)); }

}  // namespace

ProgramSearch SystemPrograms() { return ProgramSearch(Variable("PATH")); }

WebBrowsers ReadWebBrowsers() {
    const DataFolders folders{ToText(QDir::homePath()), Variable("XDG_DATA_HOME"), Variable("XDG_DATA_DIRS")};
    return {ApplicationFolders(folders), SystemPrograms()};
}

}  // namespace tintora
