#pragma once

#include <QPageLayout>

class QWidget;

namespace tintora {

/// The paper and the margins for printing, as the user has chosen them in this run; the system's before that.
[[nodiscard]] const QPageLayout& ChosenPageLayout();

/// Asks for them by the system's dialogue over `window`.
void AskPageLayout(QWidget* window);

}  // namespace tintora
