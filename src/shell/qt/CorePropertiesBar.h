#pragma once

#include "properties/qt/ColorQuestion.h"
#include "shell/CorePropertiesToolbar.h"
#include "text/Text.h"

#include <QToolBar>
#include <functional>
#include <optional>
#include <vector>

class QAction;

namespace tintora {

class CorePropertiesHost;
class CorePropertyBox;
class FrontDocument;
struct PropertyChange;

/// The toolbar of core properties: it shows the most common declarations of the current rule, and changes them.
///
/// Only what the user does reaches the host. The marks and the texts come from the document alone: a click on a tool
/// asks for a change, and what the tool shows afterwards is what the document has shown since. What goes wrong with it
/// is thrown again from the event loop. The tools have their keys as object names; all of them are disabled until
/// `EnableCorePropertiesToolbar(true)`.
///
///     bar.EnableCorePropertiesToolbar(true);
///     bar.SetUpCorePropertiesToolbar(u"{font-weight: bold;}");
///     bar.RunTool(u"miFoBold");       // the host removes the `font-weight`
class CorePropertiesBar : public QToolBar {
    Q_OBJECT

  public:
    /// `host` must outlive the toolbar. Without `askColor` the toolkit's dialogue asks for colours.
    CorePropertiesBar(CorePropertiesHost& host, QWidget* parent, AskColor askColor = AskColorByDialog);

    /// Shows the declarations of a rule's body, those without a ";" left out. Throws `OverflowFailure` beyond the
    /// length limit.
    void SetUpCorePropertiesToolbar(TextView body);

    /// Nothing checked, and no texts; the font families are those of the style sheet in front, if there is one. A box
    /// that is just reporting a change is left alone.
    void ClearToolBar();

    /// Clears the toolbar, and enables or disables all its tools. Where the focus was on it, disabling gives it to the
    /// text.
    void EnableCorePropertiesToolbar(bool enabled);

    /// Does what a click on the tool does; for a combo box, it writes the text. Does nothing for a key of no tool, or
    /// while the toolbar is disabled.
    void RunTool(TextView key);

    /// Ask for the colour of the text or of the ground behind it, and write it. They do nothing while the toolbar is
    /// disabled, before the question or behind it, nor for a style sheet that has ceased to be the one in front.
    void EditColorGM();
    void EditBackgroundColorGM();

    /// Has the user compose the fonts of the first box in `MoreFontsDialog`, and writes them, under the same
    /// conditions.
    void EditMoreFonts();

    /// The action of a tool, for menus to share; `nullptr` for the two combo boxes and for a key of no tool.
    [[nodiscard]] QAction* Action(TextView key) const;

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    CorePropertyBox* MakeBox(TextView key, const QString& sample, const QString& name, const QString& statusTip);
    void AddTool(TextView key);
    void AddBox(CorePropertyBox& box);
    void AddButton(TextView key);
    [[nodiscard]] CorePropertyBox* Box(TextView key) const;
    void Act(const std::function<void()>& act);
    void Change(const std::vector<PropertyChange>& changes);
    void EditColor(TextView property, const QString& title);
    /// Whether there is a style sheet to change, and it is still the one before a question.
    [[nodiscard]] bool IsStillInFront(const FrontDocument* sheet) const;
    void ShowFontFamilies();
    void ShowMarks();
    void ReadColors(const Texts& declarations);
    void ShowColors();
    void EnableTools();

    CorePropertiesHost& host_;
    AskColor askColor_;
    CorePropertyBox* fontFamily_;
    CorePropertyBox* fontSize_;
    bool isEnabled_ = false;
    /// What is shown. A command goes by this, not by the marks, which a click has changed already when it is told.
    CorePropertiesToolbar shown_;
    std::optional<QColor> color_;
    std::optional<QColor> backgroundColor_;
};

}  // namespace tintora
