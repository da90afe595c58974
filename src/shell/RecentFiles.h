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
/// The setting has the paths joined by "^^^". A "^" of a path is stored as "^-", so that no path is taken for two, and
/// each comes back as it was, whatever it holds, line ends among it. A "^" with anything else behind it stands for
/// itself, so that a value that was written in any other way is read for what it can be.
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
