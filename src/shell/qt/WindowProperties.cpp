#include "shell/qt/WindowProperties.h"

#include "properties/qt/ktPropertiesEditor.h"
#include "text/qt/QtText.h"

#include <QFileInfo>

namespace tintora {

WindowProperties::WindowProperties(Surroundings surroundings, QWidget& window)
    : surroundings_(std::move(surroundings)),
      palette_(
          new ktPropertiesEditor({.documents = *this,
                                  .settings = surroundings_.store,
                                  .clipboard = clipboard_,
                                  .menus = surroundings_.menus,
                                  .warnings = surroundings_.warnings,
                                  .askColor = surroundings_.askColor,
                                  .askFile = [this](const QString& title, const QString& filters,
                                                    QWidget* parent) { return AskForFile(title, filters, parent); }},
                                 &window)) {
    connect(palette_, &ktPropertiesEditor::ShowFloatingWindow, this,
            [this](const QString& pane) { surroundings_.showPane(ToText(pane)); });
    connect(palette_, &ktPropertiesEditor::TextWanted, this, [this] { surroundings_.focusText(); });
}

WindowProperties::~WindowProperties() { delete palette_; }

void WindowProperties::OpenPropertyEditor(TextView name) {
    palette_->ShowWindow();
    palette_->OpenPropertyEditor(name);
}

void WindowProperties::Close() {
    isClosed_ = true;
    palette_->UpdateDocument();
}

QString WindowProperties::AskForFile(const QString& title, const QString& filters, QWidget* parent) {
    // Images mostly lie near the style sheet.
    const EditedDocument* const document = GetActiveDocument();
    const QString sheet = document == nullptr ? QString() : ToQString(document->GetFile());
    const QString near = sheet.isEmpty() ? QString() : QFileInfo(sheet).absolutePath();
    const QStringList chosen = surroundings_.askFiles(
        {.title = title, .filters = filters, .folder = folder_.isEmpty() ? near : folder_}, parent);
    if (chosen.isEmpty())
        return {};
    folder_ = QFileInfo(chosen.front()).absolutePath();
    return chosen.front();
}

}  // namespace tintora
