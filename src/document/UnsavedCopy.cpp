#include "document/UnsavedCopy.h"

#include <utility>

namespace tintora {

namespace {

/// The rest of the second is for the disk.
constexpr std::chrono::milliseconds Delay{700};

}  // namespace

UnsavedCopy::UnsavedCopy(RecoveryCopies& copies, Clock& clock, std::function<RecoveryRecord()> makeRecord)
    : copies_(copies),
      makeRecord_(std::move(makeRecord)),
      delay_(clock.MakeTimer(Delay, [this] { copies_.KeepSoon(Name(), makeRecord_()); })) {}

const std::string& UnsavedCopy::Name() {
    if (name_.empty())
        name_ = copies_.MakeName();
    return name_;
}

void UnsavedCopy::TextChanged() {
    if (!delay_->IsRunning())
        delay_->Restart();
}

void UnsavedCopy::Keep() {
    delay_->Stop();
    copies_.Keep(Name(), makeRecord_());
}

void UnsavedCopy::Drop() {
    delay_->Stop();
    if (!name_.empty())
        copies_.Drop(std::exchange(name_, {}));
}

}  // namespace tintora
