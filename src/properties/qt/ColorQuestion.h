#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace tintora {

/// A colour that the user is to choose.
struct ColorQuestion {
    QString title;
    /// The colour at which the choice starts, where there is one.
    std::optional<QColor> present;
    /// Colours to choose from besides; those beyond the room for them don't show.
    QList<QColor> customColors;
};

/// Asks for a colour over the window of `parent`; gives nothing if the question is cancelled.
using AskColor = std::function<std::optional<QColor>(const ColorQuestion& question, QWidget* parent)>;

/// Asks by the toolkit's dialogue, which is modal.
[[nodiscard]] std::optional<QColor> AskColorByDialog(const ColorQuestion& question, QWidget* parent);

}  // namespace tintora
