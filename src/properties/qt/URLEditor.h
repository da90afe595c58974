#pragma once

#include "properties/URLField.h"
#include "properties/qt/ValueControl.h"

class QDropEvent;
class QMimeData;
class QToolButton;

namespace tintora {

class ChoiceBox;

/// A value control for an address: the editable list `URLField`, which holds the path without "url()", and a button
/// that asks for a file. A file may be dropped on the field.
///
/// Each change of the text by the user is reported. What fails on the way leaves the control as it is, without a
/// message.
class URLEditor final : public ValueControl {
    Q_OBJECT

  public:
    URLEditor(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return field_.GetValue(); }
    void SetValue(TextView value) override;
    void EditProperty(int property) override;
    void SetLabel(const QString& label) override;

    /// Files are images for the document in front then, but for a URL that has no list.
    void Clear(const FrontDocument* front) override;

    // The document that dropped files are relative to, and the files that may be chosen and dropped, in the form of
    // `ImageFilter`.

    void SetParentURL(TextView parent) { field_.SetParentURL(parent); }
    void SetFilter(TextView filter) { field_.SetFilter(filter); }

    /// The list of a URL that has none of its own: exactly these. The field is empty then.
    void SetURLs(const Texts& urls);
    void SelectURL(TextView text);
    [[nodiscard]] Text GetStrippedValue() const { return field_.GetStrippedValue(); }

    // The clipboard, for the text of the field. What is pasted loses a "url()" around it.

    void Paste() override;
    void Cut() override;
    void Copy() override;
    void ClearSelection() override;

    /// Asks for a file and shows its path, relative to the document in front. The answer counts only if control,
    /// document and rule are the same then.
    void LocateURL();

    /// Shows the path of a file that was dropped, relative to the parent document; nothing if the filter doesn't hold
    /// it.
    void DropFile(const Text& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void ShowState();
    void EnterText(TextView text);
    void Report();

    URLField field_;
    ChoiceBox* urlField_;
    QToolButton* locate_;
};

}  // namespace tintora
