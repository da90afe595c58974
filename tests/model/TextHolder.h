#pragma once

#include "model/StyleSheetTextSource.h"
#include "model/ktStyleSheet.h"

namespace tintora::test {

/// A window that is nothing but its text.
class TextHolder final : public StyleSheetTextSource {
  public:
    explicit TextHolder(Text text = {}) : text_(std::move(text)) {}

    [[nodiscard]] Text GetText() const override { return text_; }
    void LoadContent(TextView file) override { loadedFile_ = file; }

    void SetText(Text text) { text_ = std::move(text); }
    [[nodiscard]] const Text& LoadedFile() const { return loadedFile_; }

  private:
    Text text_;
    Text loadedFile_;
};

/// A style sheet over a text, with its cache filled.
class CachedSheet {
  public:
    explicit CachedSheet(Text text) : holder_(std::move(text)) {
        sheet_.setWindow(&holder_);
        sheet_.CacheStatements();
    }

    ktStyleSheet* operator->() { return &sheet_; }

  private:
    TextHolder holder_;
    ktStyleSheet sheet_;
};

}  // namespace tintora::test
