#pragma once

#include "document/RecoveryRecord.h"
#include "linking/TextWriting.h"

#include <string>

namespace tintora {

/// Keeps what would be lost if the program ended now. A copy has a name, and one of the same name takes its place.
/// Failures are quiet: a document can be edited and saved without its copy.
class RecoveryCopies {
  public:
    RecoveryCopies() = default;
    RecoveryCopies(const RecoveryCopies&) = delete;
    RecoveryCopies& operator=(const RecoveryCopies&) = delete;
    virtual ~RecoveryCopies() = default;

    /// A name that no copy has, and no other call gives.
    [[nodiscard]] virtual std::string MakeName() = 0;

    /// Keeps a copy a moment later, without keeping the caller waiting; of several in a row only the last.
    virtual void KeepSoon(const std::string& name, const RecoveryRecord& record) = 0;

    /// Keeps a copy, which is on the disk when this returns.
    virtual void Keep(const std::string& name, const RecoveryRecord& record) = 0;

    /// Forgets a copy; none of that name is kept later either, until it is asked for.
    virtual void Drop(const std::string& name) = 0;

    /// What the writers of files are to tell, so that the bytes of a write are kept until it is done; it may be null.
    [[nodiscard]] virtual WriteObserver* Journal() = 0;
};

/// For documents that are nobody's work: nothing is kept.
class NoRecoveryCopies final : public RecoveryCopies {
  public:
    [[nodiscard]] std::string MakeName() override { return "none"; }
    void KeepSoon(const std::string&, const RecoveryRecord&) override {}
    void Keep(const std::string&, const RecoveryRecord&) override {}
    void Drop(const std::string&) override {}
    [[nodiscard]] WriteObserver* Journal() override { return nullptr; }
};

}  // namespace tintora
