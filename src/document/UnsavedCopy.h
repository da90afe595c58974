#pragma once

#include "document/RecoveryCopies.h"
#include "editor/Clock.h"

#include <functional>
#include <memory>
#include <string>

namespace tintora {

/// The recovery copy of one document, never older than a second while the user types.
class UnsavedCopy {
  public:
    /// `makeRecord` gives what is to be kept. `copies` and `clock` must outlive the object.
    UnsavedCopy(RecoveryCopies& copies, Clock& clock, std::function<RecoveryRecord()> makeRecord);

    /// The document has something to lose, or something else than before: it is kept soon, and no later because more
    /// follows.
    void TextChanged();

    /// Keeps the copy now, on the disk.
    void Keep();

    /// Nothing is to be lost any more.
    void Drop();

    /// Takes over the copy that an earlier run has left, in whose place the next one is kept.
    void TakeOver(std::string name) { name_ = std::move(name); }

  private:
    RecoveryCopies& copies_;
    std::function<RecoveryRecord()> makeRecord_;
    std::unique_ptr<DelayTimer> delay_;
    /// The copy's name; "" before there is one.
    std::string name_;

    [[nodiscard]] const std::string& Name();
};

}  // namespace tintora
