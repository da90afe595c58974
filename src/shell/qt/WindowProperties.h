#pragma once

#include "document/DocumentSurroundings.h"
#include "editor/qt/QtClipboard.h"
#include "preview/qt/FilesWanted.h"
#include "properties/qt/ControlSurroundings.h"

#include <QObject>
#include <QPointer>
#include <functional>

namespace tintora {

class ktPropertiesEditor;

/// The palette "Properties" of the main window, and what it needs of it.
class WindowProperties : public QObject, private EditedDocuments {
    Q_OBJECT

  public:
    /// All of it must outlive the object.
    struct Surroundings {
        SettingsStore& store;
        PaletteMenus& menus;
        SupportWarnings& warnings;
        AskColor askColor;
        AskFiles askFiles;
        /// The style sheet in front, `nullptr` if there is none.
        std::function<EditedDocument*()> active;
        /// The first open style sheet with that caption, `nullptr` if there is none.
        std::function<EditedDocument*(TextView)> called;
        /// Shows the pane with that key.
        std::function<void(TextView)> showPane;
        /// Gives the focus to the text.
        std::function<void()> focusText;
    };

    WindowProperties(Surroundings surroundings, QWidget& window);
    /// The palette goes first, whoever owns it.
    ~WindowProperties() override;

    /// The form of the pane "dwPropertiesEditor".
    [[nodiscard]] ktPropertiesEditor& Palette() noexcept { return *palette_; }

    /// Shows the pane, and the editor of a caption or property in it.
    void OpenPropertyEditor(TextView name);

    /// The window is going: from now on there is no style sheet.
    void Close();

  private:
    [[nodiscard]] EditedDocument* GetActiveDocument() override { return isClosed_ ? nullptr : surroundings_.active(); }
    [[nodiscard]] EditedDocument* FindStyleSheet(TextView caption) override {
        return isClosed_ ? nullptr : surroundings_.called(caption);
    }
    [[nodiscard]] QString AskForFile(const QString& title, const QString& filters, QWidget* parent);

    Surroundings surroundings_;
    QtClipboard clipboard_;
    bool isClosed_ = false;
    /// Where a file was chosen last; "" before the first.
    QString folder_;
    QPointer<ktPropertiesEditor> palette_;
};

}  // namespace tintora
