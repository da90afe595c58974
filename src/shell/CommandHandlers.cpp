#include "shell/CommandHandlers.h"

namespace tintora {

bool CommandHandlers::CanRun(TextView key) const {
    if (ownHandlers_.contains(key))
        return true;
    const Command* const command = CommandFor(key);
    return command != nullptr && handlers_.contains(command->operation);
}

void CommandHandlers::Run(TextView key) const {
    if (!CanRun(key))
        return;
    if (const auto own = ownHandlers_.find(key); own != ownHandlers_.end()) {
        own->second();
        return;
    }
    const Command& command = *CommandFor(key);
    handlers_.at(command.operation)(command);
}

}  // namespace tintora
