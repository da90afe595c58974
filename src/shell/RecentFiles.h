#pragma once

#include "settings/SettingsStore.h"
#include "text/Text.h"

#include <cstddef>

namespace tintora {

/// The files that were opened or saved last, the latest first. The list lies in the settings: each question reads it
/// there, and each change is written at once.
///
///     RecentFiles recent(store);
///     recent.Add(u"/site/a.css");
///     recent.Add(u"/site/b.css");
///     recent.Read();                      // {"/site/b.css", "/site/a.css"}
///
/// The setting has the paths joined as `PathLists` tells, so that each comes back as it was, whatever it holds.
class RecentFiles {
  public:
    /// The most paths that are kept.
    static constexpr std::size_t Most = 10;

    /// `store` must outlive the object.
    explicit RecentFiles(SettingsStore& store) : store_(store) {}

    /// The paths, at most `Most`. Empty entries of the stored list don't count, and of two equal ones the first does.
    [[nodiscard]] Texts Read() const;

    /// Puts the path at the head of the list; one that is in it already moves there, and the last of too many goes.
    /// Paths are equal only as exact texts. "" adds nothing.
    void Add(TextView path);

    /// Empties the list.
    void Clear();

  private:
    SettingsStore& store_;
};

}  // namespace tintora
