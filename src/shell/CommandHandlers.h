#pragma once

#include "shell/Commands.h"

#include <functional>
#include <map>

namespace tintora {

/// What the operations of the commands do in this program. A command whose operation has no handler isn't there yet,
/// and shows nowhere.
class CommandHandlers {
  public:
    using Handler = std::function<void(const Command&)>;

    void Set(CommandOperation operation, Handler handler) { handlers_[operation] = std::move(handler); }

    /// For a command of this program alone, whose key isn't in the table.
    void SetOwn(TextView key, std::function<void()> handler) { ownHandlers_[Text(key)] = std::move(handler); }

    /// Whether the key stands for a command that can be run.
    [[nodiscard]] bool CanRun(TextView key) const;

    /// Does what the key stands for; nothing where it stands for nothing.
    void Run(TextView key) const;

  private:
    std::map<CommandOperation, Handler> handlers_;
    std::map<Text, std::function<void()>, std::less<>> ownHandlers_;
};

}  // namespace tintora
