#pragma once

#include "document/ktStyleSheetWindow.h"
#include "editor/MemorySourceView.h"
#include "editor/StillClock.h"
#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <chrono>
#include <memory>

namespace tintora::cli {

/// A document window with no window: over a text control in memory, a clock that stands still, and dialogs that give
/// the answers of a script. All palettes count as open, and what is called is written down.
class HeadlessDocument {
  public:
    /// `settings` must outlive the object.
    explicit HeadlessDocument(SettingsStore& settings);
    ~HeadlessDocument();
    HeadlessDocument(const HeadlessDocument&) = delete;
    HeadlessDocument& operator=(const HeadlessDocument&) = delete;

    /// Opens a text as a file is opened: with nothing to undo, not dirty, and the palettes brought up to date.
    void Open(TextView text);

    [[nodiscard]] ktStyleSheetWindow& Window();
    [[nodiscard]] const ktStyleSheetWindow& Window() const;

    /// What the next dialog answers; "" cancels it.
    void SetAnswer(TextView answer);

    /// Whether changes of properties come from the palette of properties from now on.
    void SetPaletteWrites(bool isWriting);

    /// The whole road of a key that types one character. "\b" is Backspace, U+007F Delete.
    void PressKey(char16_t character);

    /// Moves the clock on.
    void Wait(std::chrono::milliseconds time);

    /// What has been called since the last time, in order.
    [[nodiscard]] Texts TakeCalls();

  private:
    class Surroundings;

    StillClock clock_;
    std::unique_ptr<Surroundings> surroundings_;
    std::unique_ptr<MemorySourceView> view_;
    std::unique_ptr<ktStyleSheetWindow> window_;
};

}  // namespace tintora::cli
