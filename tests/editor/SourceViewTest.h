#pragma once

#include "EditorRecorders.h"
#include "MarkedText.h"
#include "editor/EditorSurroundings.h"
#include "editor/SourceView.h"
#include "text/Encoding.h"

#include <gtest/gtest.h>

#include <random>

namespace tintora::test {

/// What all suites of the text control's contract stand on. `Maker` makes a control and can be made without arguments:
///
///     struct Maker {
///         SourceView& View();         // empty at first, with no scanner and nobody who listens
///         Clipboard& Clip();          // the one that the control uses
///     };
template <typename Maker>
class SourceViewTest : public ::testing::Test {
  protected:
    void TearDown() override { View().SetEvents(nullptr); }

    [[nodiscard]] SourceView& View() { return maker_.View(); }
    [[nodiscard]] SourceBuffer& Buffer() { return View().Buffer(); }
    [[nodiscard]] Clipboard& Clip() { return maker_.Clip(); }
    [[nodiscard]] Text DrawnText() { return Drawn(View()); }

    void Put(TextView drawn) { PutDrawn(View(), drawn); }

    /// From now on the log has what the control tells.
    void Listen() {
        View().SetEvents(&events_);
        log_.Forget();
    }

    /// Takes everything back, and answers how many steps it was.
    int UndoAll() {
        int steps = 0;
        for (; Buffer().CanUndo(); ++steps)
            Buffer().Undo();
        return steps;
    }

    CallLog log_;
    RecordingEvents events_{log_};

  private:
    Maker maker_;
};

/// A row, as a reader of the text finds it.
struct PlainRow {
    int start = 0;
    Text text;
    Text lineEnd;
};

/// The rows of a text, found unit by unit.
inline std::vector<PlainRow> RowsOf(TextView text) {
    std::vector<PlainRow> rows(1);
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (unit != u'\r' && unit != u'\n') {
            rows.back().text.push_back(unit);
            continue;
        }
        rows.back().lineEnd.push_back(unit);
        if (unit == u'\r' && index + 1 < text.size() && text[index + 1] == u'\n')
            rows.back().lineEnd.push_back(text[++index]);
        rows.push_back({static_cast<int>(index) + 1, {}, {}});
    }
    return rows;
}

/// The same random numbers at each run.
class RandomNumbers {
  public:
    explicit RandomNumbers(unsigned seed) : engine_(seed) {}

    /// One from 0 to `most`.
    int UpTo(std::size_t most) { return static_cast<int>(engine_() % (most + 1)); }

    /// One of a list.
    template <typename List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(UpTo(list.size() - 1))];
    }

  private:
    std::mt19937 engine_;
};

/// A text with `put` in the place of a range.
inline Text Replaced(const Text& text, int start, int end, TextView put) {
    Text result = text;
    result.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start), put);
    return result;
}

}  // namespace tintora::test
