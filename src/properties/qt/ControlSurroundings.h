#pragma once

#include "editor/EditorSurroundings.h"
#include "properties/PaletteFlags.h"
#include "properties/PaletteSurroundings.h"
#include "properties/qt/ColorQuestion.h"
#include "settings/SettingsStore.h"

#include <QString>
#include <functional>

class QWidget;

namespace tintora {

class ScreenColor;

/// The commands of the main window, as a control of the palette sees them.
class PaletteMenus {
  public:
    virtual ~PaletteMenus() = default;

    /// Whether the palettes took the focus last, and not the documents.
    [[nodiscard]] virtual bool IsEditorInFront() const = 0;

    /// Enables or disables the command with that key, where there is one.
    virtual void UpdateMenuItem(TextView key, bool enabled) = 0;
};

/// Asks for a file that exists, by a dialog with a title and a filter of the toolkit's form; gives "" if it is
/// cancelled.
using AskFile = std::function<QString(const QString& title, const QString& filter, QWidget* parent)>;

/// What the controls of the palette work with. All of it must outlive them.
struct ControlSurroundings {
    EditedDocuments& documents;
    SettingsStore& settings;
    PaletteFlags& flags;
    Clipboard& clipboard;
    PaletteMenus& menus;
    AskColor askColor;
    AskFile askFile;

    /// Where the eyedroppers take their colours from; `nullptr` for the desktop's screens.
    ScreenColor* screenColor = nullptr;
};

}  // namespace tintora
