#include "shell/CommandLine.h"

#include "linking/Paths.h"
#include "linking/TextFiles.h"
#include "text/Encoding.h"

#include <filesystem>
#include <system_error>

namespace tintora {

Text GetCommandLineFile(const Texts& arguments) {
    Text line;
    for (const Text& argument : arguments) {
        if (!line.empty())
            line.push_back(u' ');
        line += argument;
    }
    return UnquoteText(line);
}

Text AbsolutePath(TextView path) {
    if (path.empty())
        return {};
    std::error_code failed;
    const std::filesystem::path absolute = std::filesystem::absolute(FileNameFromText(path), failed);
    return failed ? Text(path) : TextFromFileName(absolute.lexically_normal().native());
}

CommandLineRequest GetCommandLineRequest(const Texts& arguments) {
    if (arguments.size() != 1 || FileExists(arguments.front()))
        return CommandLineRequest::OpenFile;
    if (arguments.front() == u"--help")
        return CommandLineRequest::ShowHelp;
    return arguments.front() == u"--version" ? CommandLineRequest::ShowVersion : CommandLineRequest::OpenFile;
}

}  // namespace tintora
