#pragma once

#include "properties/QuotesFields.h"
#include "properties/qt/CompoundControl.h"

class QBoxLayout;
class QLineEdit;
class QPushButton;

namespace tintora {

class EntryList;

/// What the quotes editor consists of: the word `QuotesTypeSelector`, the pairs `CurrentQuoteList`, the fields
/// `OpeningQuote` and `ClosingQuote`, and the buttons `Add`, `Change` and `Remove`.
class QuotesControl final : public CompoundControl {
    Q_OBJECT

  public:
    QuotesControl(int number, const ControlSurroundings& surroundings, QWidget* parent);

    [[nodiscard]] Text GetValue() const override { return quotes_->GetValue(); }
    void SetValue(TextView value) override;
    void Clear(const FrontDocument* front) override;

  private:
    void UpdateEditor() override;

    QLineEdit* MakeField(const QString& name, const QString& title, void (QuotesFields::*enter)(TextView));
    QPushButton* MakeButton(const QString& name, void (QuotesFields::*act)());
    void LayOut(ValueControl& type);

    std::shared_ptr<QuotesFields> quotes_;
    EntryList* list_;
    QLineEdit* opening_;
    QLineEdit* closing_;
    QPushButton* add_;
    QPushButton* change_;
    QPushButton* remove_;
};

}  // namespace tintora
