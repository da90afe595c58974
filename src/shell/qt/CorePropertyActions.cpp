#include "shell/qt/CorePropertyActions.h"

#include "shell/qt/Actions.h"
#include "text/qt/QtText.h"

#include <algorithm>
#include <array>

namespace tintora {

namespace {

const std::array<ActionLook, 10>& Looks() {
    static const std::array<ActionLook, 10> looks = {{
        {"miFoBold", "&Bold", "format-text-bold", QKeySequence(Qt::CTRL | Qt::Key_B),
         "Makes the text of the rule bold, or takes that back"},
        {"miFoItalic", "&Italic", "format-text-italic", QKeySequence(Qt::CTRL | Qt::Key_I),
         "Makes the text of the rule italic, or takes that back"},
        {"miFoUnderline", "&Underline", "format-text-underline", QKeySequence(Qt::CTRL | Qt::Key_U),
         "Underlines the text of the rule, or takes that back"},
        {"miFoStrikeThrough",
         "Stri&ke Through",
         "format-text-strikethrough",
         {},
         "Strikes the text of the rule through, or takes that back"},
        {"miFoLeft",
         "Align &Left",
         "format-justify-left",
         {},
         "Aligns the text of the rule at the left, or takes that back"},
        {"miFoCenter", "&Center", "format-justify-center", {}, "Centers the text of the rule, or takes that back"},
        {"miFoRight",
         "Align &Right",
         "format-justify-right",
         {},
         "Aligns the text of the rule at the right, or takes that back"},
        {"miFoJustify",
         "&Justify",
         "format-justify-fill",
         {},
         "Aligns the text of the rule at both sides, or takes that back"},
        {"miColor", "&Text Color…", "", {}, "Chooses the color of the rule's text"},
        {"miBackgroundColor", "Back&ground Color…", "", {}, "Chooses the color behind the rule's text"},
    }};
    return looks;
}

}  // namespace

QAction* MakeCorePropertyAction(TextView key, QObject* parent) {
    const QString wanted = ToQString(key);
    const auto* const look =
        std::ranges::find_if(Looks(), [&](const ActionLook& row) { return wanted == QString::fromUtf8(row.key); });
    if (look == Looks().end())
        return nullptr;
    QAction* const action = MakeAction(*look, parent);
    action->setCheckable(*look->icon != '\0');
    return action;
}

}  // namespace tintora
