#pragma once

#include "properties/ContentFields.h"
#include "properties/qt/CompoundControl.h"

#include <array>

class QFrame;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace tintora {

class EntryList;

/// What the content editor consists of: the word `ContentEditor`, the parts `CurrentContentList`, the tabs
/// `ContentTabStrip` with a frame each for what can be added (`StringContent`, `AttributeContent`, `KeywordContent`),
/// and the buttons `Add` and `Remove`.
///
/// Its focus is always reported under its own number.
class ContentControl final : public CompoundControl {
    Q_OBJECT

  public:
    ContentControl(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return content_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;

  private:
    void UpdateEditor() override;
    void HandlePartChange(int number) override;
    [[nodiscard]] int FocusNumber(int /*part*/) const override { return PropertyName(); }

    QLineEdit* MakeField(const QString& name, void (ContentFields::*enter)(TextView));
    QPushButton* MakeButton(const QString& name, void (ContentFields::*act)());
    void MakeTabs();
    void AddFrame(ContentFields::Tab tab, const QString& name, QWidget* content);
    void LayOut(ValueControl& type);

    std::shared_ptr<ContentFields> content_;
    EntryList* list_;
    QTabBar* tabs_;
    QStackedWidget* frames_;
    QLineEdit* string_;
    QLineEdit* attribute_;
    QPushButton* add_;
    QPushButton* remove_;
};

}  // namespace tintora
