#pragma once

#include "text/Text.h"

namespace tintora {

/// The style sheet in front, as the palette of statements works on it.
class FrontStyleSheet {
  public:
    virtual ~FrontStyleSheet() = default;

    /// The user has chosen a statement, 1-based: the text selects it. The focus stays where it is.
    virtual void StatementSelected(int number) = 0;

    // The commands on the statement at the caret. "" as the kind of a new statement asks for it.

    virtual void NewStatement(TextView kind) = 0;
    virtual void NewComment() = 0;
    virtual void EditStatement() = 0;
    virtual void DuplicateStatement() = 0;
    virtual void DeleteStatement() = 0;
};

}  // namespace tintora
