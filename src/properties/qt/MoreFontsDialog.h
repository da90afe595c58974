#pragma once

#include "properties/FontFamilyList.h"

#include <QDialog>
#include <QStringList>
#include <optional>

class QAction;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabBar;
class QToolBar;

namespace tintora {

/// Composes a `font-family` value: at the left the fonts of a set, at the right those of the value, in their order.
///
///     const std::optional<Text> family = MoreFontsDialog(installed, window).EditFonts(u"Georgia, serif");
class MoreFontsDialog : public QDialog {
    Q_OBJECT

  public:
    /// `installed` are the fonts of this computer.
    MoreFontsDialog(const Texts& installed, QWidget* parent);

    /// Begins with a value and shows itself until it is answered; gives the new value, or nothing if it is cancelled or
    /// goes with its parent.
    [[nodiscard]] std::optional<Text> EditFonts(TextView family);

    /// The value as it is composed now.
    [[nodiscard]] const Text& FamilyText() const noexcept { return fonts_.FamilyText(); }

  private:
    void SetUpFontSets();
    void SetUpCurrentList();
    void SetUpToolbar();
    QAction* AddMove(const QString& name, const QString& text, const QString& iconName, const QKeySequence& shortcut);
    void LayOut();
    void ShowFontsOfTab(int index);

    // What the user does.
    void SelectCurrentFont();
    void AddSelectedFonts();
    void RemoveFont();
    void MoveFont(void (FontFamilyList::*move)());

    void SetUpCurrentFonts();
    void UpdateControls();

    Texts installed_;
    FontFamilyList fonts_;
    QTabBar* fontSetChooser_;
    QListWidget* fontSelectorList_;
    QListWidget* currentFontList_;
    QLineEdit* currentFontText_;
    QPushButton* addFonts_;
    QPushButton* removeFonts_;
    QToolBar* toolbar_;
    QAction* up_ = nullptr;
    QAction* down_ = nullptr;
};

/// The fonts of the toolkit's families, each once. Where several makers have a font of one name the toolkit puts the
/// maker behind it: "Courier [Adobe]"; a style sheet knows no makers.
[[nodiscard]] Texts InstalledFonts(const QStringList& families);

/// Asks by the dialogue, with the fonts that are installed, over the window of `parent`.
[[nodiscard]] std::optional<Text> AskFontsByDialog(TextView family, QWidget* parent);

}  // namespace tintora
