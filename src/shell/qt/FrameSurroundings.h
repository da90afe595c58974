#pragma once

#include "document/RecoveryFolder.h"
#include "preview/BrowserSurroundings.h"
#include "preview/TemporaryFiles.h"
#include "preview/qt/FilesWanted.h"
#include "properties/qt/ColorQuestion.h"
#include "settings/SettingsStore.h"
#include "shell/qt/UserMessages.h"
#include "validation/ValidationSurroundings.h"

#include <QString>
#include <memory>

namespace tintora {

/// What the main window works with.
struct FrameSurroundings {
    /// Both must outlive the window.
    SettingsStore& store;
    RecoveryCopies& recovery;
    /// Says and asks what the user must see; without one, boxes do.
    std::unique_ptr<UserMessages> messages{};
    /// The file in which the arrangement of panes and toolbars is kept; with "" it isn't.
    QString layoutPath{};
    PreviewFolders previewFolders{};
    /// Ask for files and for colours.
    AskFiles askFiles = AskFilesByDialog;
    AskColor askColor = AskColorByDialog;
    /// The way to programs and to the web; without one, the system's own.
    std::unique_ptr<ProcessStarter> processes{};
    std::unique_ptr<WebAccess> web{};
};

}  // namespace tintora
