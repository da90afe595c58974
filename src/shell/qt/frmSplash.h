#pragma once

#include <QDialog>

namespace tintora {

/// Tells what the program is, in which version, and under which licence.
class frmSplash : public QDialog {
    Q_OBJECT

  public:
    explicit frmSplash(QWidget* parent);
};

}  // namespace tintora
