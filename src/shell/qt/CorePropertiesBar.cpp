#include "shell/qt/CorePropertiesBar.h"

#include "language/Vocabulary.h"
#include "model/DeclarationText.h"
#include "properties/qt/MoreFontsDialog.h"
#include "shell/Commands.h"
#include "shell/CorePropertiesHost.h"
#include "shell/PropertyToggles.h"
#include "shell/Toolbars.h"
#include "shell/qt/CorePropertyActions.h"
#include "shell/qt/CorePropertyBox.h"
#include "text/qt/QtText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <algorithm>
#include <exception>

namespace tintora {

namespace {

constexpr int IconSize = 22;
/// Between the two boxes.
constexpr int Gap = 4;

constexpr TextView Caption = u"Basic Properties";
constexpr TextView FontFamilyBox = u"cbBPFontFamily";
constexpr TextView FontSizeBox = u"cbBPFontSize";

bool IsTool(TextView key) { return std::ranges::find(CorePropertyTools, key) != CorePropertyTools.end(); }

QStringList ToQStringList(const Texts& texts) {
    QStringList strings;
    for (const Text& text : texts)
        strings.append(ToQString(text));
    return strings;
}

}  // namespace

CorePropertiesBar::CorePropertiesBar(CorePropertiesHost& host, QWidget* parent, AskColor askColor)
    : QToolBar(ToQString(Caption), parent),
      host_(host),
      askColor_(std::move(askColor)),
      fontFamily_(MakeBox(FontFamilyBox, QStringLiteral("Verdana, Geneva"), QStringLiteral("Font family"),
                          QStringLiteral("The fonts of the rule's text, the first choice in front"))),
      fontSize_(MakeBox(FontSizeBox, QStringLiteral("xx-large"), QStringLiteral("Font size"),
                        QStringLiteral("The size of the rule's text"))) {
    setObjectName(ToQString(Caption));
    setAccessibleName(ToQString(Caption));
    setIconSize({IconSize, IconSize});
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    for (const Toolbar& toolbar : Toolbars()) {
        if (toolbar.caption == Caption)
            std::ranges::for_each(toolbar.keys, [this](TextView key) { AddTool(key); });
    }
    // Before a rule has said in which unit it has its size.
    fontSize_->ShowList(ToQStringList(SetupFontSizeSelector({})));
    ShowColors();
    EnableTools();
}

CorePropertyBox* CorePropertiesBar::MakeBox(TextView key, const QString& sample, const QString& name,
                                            const QString& statusTip) {
    auto* const box = new CorePropertyBox(sample, this);
    box->setObjectName(ToQString(key));
    box->setAccessibleName(name);
    box->setToolTip(name);
    box->setStatusTip(statusTip);
    const int number = PropertyNumberFromName(CommandFor(key)->parameter);
    connect(box, &CorePropertyBox::TextChanged, this,
            [this, number](const QString& text) { Act([&] { host_.PropertyHasChanged(ToText(text), number); }); });
    connect(box, &CorePropertyBox::Left, this, [this] { host_.FocusText(); });
    return box;
}

void CorePropertiesBar::AddTool(TextView key) {
    if (key == ToolbarSeparator)
        addSeparator();
    else if (CorePropertyBox* const box = Box(key))
        AddBox(*box);
    else
        AddButton(key);
}

void CorePropertiesBar::AddBox(CorePropertyBox& box) {
    if (&box == fontSize_) {
        auto* const gap = new QWidget(this);
        gap->setFixedWidth(Gap);
        addWidget(gap);
    }
    addWidget(&box);
}

void CorePropertiesBar::AddButton(TextView key) {
    QAction* const action = MakeCorePropertyAction(key, this);
    connect(action, &QAction::triggered, this, [this, key] {
        // The click has flipped the mark.
        ShowMarks();
        Act([&] { RunTool(key); });
    });
    addAction(action);
    QWidget* const button = widgetForAction(action);
    button->setFocusPolicy(Qt::TabFocus);
    QString name = action->iconText();
    button->setAccessibleName(name.remove(QChar(0x2026)));
    button->setAccessibleDescription(action->statusTip());
}

CorePropertyBox* CorePropertiesBar::Box(TextView key) const {
    if (key == FontFamilyBox)
        return fontFamily_;
    return key == FontSizeBox ? fontSize_ : nullptr;
}

QAction* CorePropertiesBar::Action(TextView key) const {
    return IsTool(key) ? findChild<QAction*>(ToQString(key), Qt::FindDirectChildrenOnly) : nullptr;
}

void CorePropertiesBar::SetUpCorePropertiesToolbar(TextView body) {
    CorePropertiesToolbar toolbar = tintora::SetUpCorePropertiesToolbar(body);
    ClearToolBar();
    shown_ = std::move(toolbar);
    ShowMarks();
    ReadColors(GetClosedDeclarations(body));
    fontFamily_->ShowText(ToQString(shown_.fontFamily));
    if (!shown_.fontSizes.empty())
        fontSize_->ShowList(ToQStringList(shown_.fontSizes));
    fontSize_->ShowText(ToQString(shown_.fontSize));
}

void CorePropertiesBar::ClearToolBar() {
    ShowFontFamilies();
    fontFamily_->ClearText();
    fontSize_->ClearText();
    shown_ = {};
    ShowMarks();
    ReadColors({});
}

void CorePropertiesBar::ShowFontFamilies() {
    const FrontDocument* const sheet = host_.ActiveStyleSheet();
    if (sheet != nullptr && !fontFamily_->IsGuarded())
        fontFamily_->ShowList(ToQStringList(GetPossibleValues(PropertyNumberFromName(u"font-family"), sheet)));
}

void CorePropertiesBar::EditMoreFonts() {
    const FrontDocument* const sheet = host_.ActiveStyleSheet();
    if (!IsStillInFront(sheet))
        return;
    const QPointer<CorePropertiesBar> bar(this);
    const std::optional<Text> family = AskFontsByDialog(ToText(fontFamily_->currentText()), window());
    if (!bar.isNull() && family && IsStillInFront(sheet))
        host_.PropertyHasChanged(*family, PropertyNumberFromName(u"font-family"));
}

bool CorePropertiesBar::IsStillInFront(const FrontDocument* sheet) const {
    return isEnabled_ && sheet != nullptr && host_.ActiveStyleSheet() == sheet;
}

void CorePropertiesBar::ShowMarks() {
    for (const TextView key : CorePropertyTools) {
        if (QAction* const action = Action(key))
            action->setChecked(shown_.IsChecked(key));
    }
}

void CorePropertiesBar::EnableCorePropertiesToolbar(bool enabled) {
    ClearToolBar();
    // Otherwise it would go to whatever comes next.
    const QWidget* const focused = QApplication::focusWidget();
    if (!enabled && focused != nullptr && isAncestorOf(focused))
        host_.FocusText();
    isEnabled_ = enabled;
    EnableTools();
}

void CorePropertiesBar::EnableTools() {
    fontFamily_->setEnabled(isEnabled_);
    fontSize_->setEnabled(isEnabled_);
    for (const TextView key : CorePropertyTools) {
        if (QAction* const action = Action(key))
            action->setEnabled(isEnabled_);
    }
}

void CorePropertiesBar::RunTool(TextView key) {
    if (!isEnabled_ || !IsTool(key))
        return;
    const Command& command = *CommandFor(key);
    switch (command.operation) {
        case CommandOperation::PropertyHasChanged: Box(key)->Report(); break;
        case CommandOperation::ToggleBold: Change(ToggleBold(host_.CurrentDeclarations())); break;
        case CommandOperation::ToggleItalic: Change(ToggleItalic(host_.CurrentDeclarations())); break;
        case CommandOperation::ToggleUnderline: Change(ToggleUnderline(host_.CurrentDeclarations())); break;
        case CommandOperation::ToggleLinethrough: Change(ToggleLinethrough(host_.CurrentDeclarations())); break;
        case CommandOperation::ToggleTextAlign: Change({ToggleTextAlign(shown_, command.parameter)}); break;
        case CommandOperation::EditColorGM: EditColorGM(); break;
        case CommandOperation::EditBackgroundColorGM: EditBackgroundColorGM(); break;
        default: break;
    }
}

void CorePropertiesBar::Act(const std::function<void()>& act) {
    try {
        act();
    } catch (...) {
        // The controls of the toolkit are in the middle of their click or key.
        const auto throwAgain = [failure = std::current_exception()] { std::rethrow_exception(failure); };
        QMetaObject::invokeMethod(this, throwAgain, Qt::QueuedConnection);
    }
}

void CorePropertiesBar::Change(const PropertyChanges& changes) {
    for (const PropertyChange& change : changes)
        host_.PropertyHasChanged(change.value, change.number);
}

void CorePropertiesBar::changeEvent(QEvent* event) {
    QToolBar::changeEvent(event);
    const bool isLook = event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange;
    if (isLook && Action(u"miBackgroundColor") != nullptr)
        ShowColors();
}

void CorePropertiesBar::keyPressEvent(QKeyEvent* event) {
    // From the buttons; the boxes take it themselves.
    if (event->key() == Qt::Key_Escape)
        host_.FocusText();
    else
        QToolBar::keyPressEvent(event);
}

}  // namespace tintora
