#include "preview/PageTurns.h"

#include "linking/FileUrls.h"
#include "linking/TextFiles.h"

#include <utility>

namespace tintora {

PageTurns::PageTurns(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      patience_(surroundings_.clock.MakeTimer(Patience, [this] { MakeWaiting(); })) {}

PageTurns::~PageTurns() { ForgetLoading(); }

void PageTurns::SetPane(PreviewPane* pane) {
    // A pane that has gone reads nothing more, and has nothing to be stopped.
    ForgetLoading();
    loaded_.clear();
    pane_ = pane;
    if (pane_ == nullptr)
        waiting_ = nullptr;
    if (waiting_ != nullptr)
        MakeWaiting();
    else
        PaneShown();
}

void PageTurns::Preview(const PreviewedDocument& document) {
    if (IsPaneBusy() && pane_->IsVisible())
        waiting_ = &document;
    else
        Make(document);
}

void PageTurns::Forget(const PreviewedDocument& document) {
    if (waiting_ == &document)
        waiting_ = nullptr;
}

void PageTurns::PageLoaded(TextView url) {
    if (loading_.empty() || FileURLFromPath(loading_) != url)
        return;
    loaded_ = loading_;
    ForgetLoading();
    surroundings_.filesToDelete.PurgeFilesToDelete();
    MakeWaiting();
}

void PageTurns::PaneShown() {
    const Text newest = surroundings_.newest().front();
    const bool isComing = IsPaneBusy() && newest == loading_;
    if (!isComing && newest != loaded_ && FileExists(newest))
        LoadNewest();
}

void PageTurns::Make(const PreviewedDocument& document) {
    waiting_ = nullptr;
    if (!surroundings_.make(document).empty())
        LoadNewest();
}

void PageTurns::MakeWaiting() {
    if (const PreviewedDocument* const document = std::exchange(waiting_, nullptr))
        Make(*document);
}

void PageTurns::LoadNewest() {
    const bool wasLoading = !loading_.empty();
    ForgetLoading();
    const bool isVisible = pane_ != nullptr && pane_->IsVisible();
    if (wasLoading || isVisible)
        pane_->Stop();
    if (!isVisible) {
        surroundings_.filesToDelete.PurgeFilesToDelete();
        return;
    }
    held_ = surroundings_.newest();
    loading_ = held_.front();
    for (const Text& file : held_)
        surroundings_.filesToDelete.Hold(file);
    patience_->Restart();
    pane_->Navigate(FileURLFromPath(loading_));
}

void PageTurns::ForgetLoading() {
    for (const Text& file : held_)
        surroundings_.filesToDelete.Release(file);
    held_.clear();
    loading_.clear();
    patience_->Stop();
}

}  // namespace tintora
