#include "preview/qt/SystemProcesses.h"

#include "preview/Programs.h"
#include "text/qt/QtText.h"

#include <QFile>
#include <QProcess>
#include <algorithm>

namespace tintora {

namespace {

bool CanBeArgument(const QString& text) {
    return !text.contains(QChar::Null) && QFile::decodeName(QFile::encodeName(text)) == text;
}

}  // namespace

bool SystemProcesses::Start(const Texts& command) {
    // A name alone would be looked for along the search path.
    if (command.empty() || !command.front().starts_with(u'/') || !IsProgram(command.front()))
        return false;
    QStringList words;
    for (const Text& word : command)
        words.append(ToQString(word));
    if (!std::ranges::all_of(words, CanBeArgument))
        return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}

}  // namespace tintora
