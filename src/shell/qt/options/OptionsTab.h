#pragma once

#include <QWidget>

namespace tintora {

/// One tab of the options. What its user changes is stored by `Apply` alone.
class OptionsTab : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    /// Shows what is stored.
    virtual void Load() = 0;

    /// Stores what is shown.
    virtual void Apply() = 0;
};

}  // namespace tintora
