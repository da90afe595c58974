#pragma once

#include "linking/TextWriting.h"
#include "preview/BrowserLocations.h"
#include "preview/BrowserSurroundings.h"
#include "preview/PreviewMaking.h"
#include "preview/PreviewedDocument.h"
#include "text/Text.h"

namespace tintora {

/// The filter of the question for a browser that isn't where it should be.
inline constexpr TextView ProgramFilter = u"executable files";

/// Previews in the browsers of the system. Each starts a process on new temporary files. A browser that can't be
/// started gives no message, and a preview that can't be made starts none.
class BrowserPreviews {
  public:
    /// All of it must outlive the object.
    struct Surroundings {
        PreviewMaking& making;
        BrowserLocations& locations;
        FileQuestion& question;
        ProcessStarter& processes;
        WriteMessages& messages;
    };

    explicit BrowserPreviews(const Surroundings& surroundings) : surroundings_(surroundings) {}

    /// Each previews in the browser at its location. Where there is no such file, the user is asked for one, and the
    /// answer is the new location, unchecked. A question that is cancelled starts nothing and makes nothing; it stores
    /// "", so that the default holds again.
    void PreviewInIE(const PreviewedDocument& document) { PreviewInNamed(NamedBrowser::IE, document); }
    void PreviewInNS(const PreviewedDocument& document) { PreviewInNamed(NamedBrowser::Netscape, document); }
    void PreviewInOpera(const PreviewedDocument& document) { PreviewInNamed(NamedBrowser::Opera, document); }
    void PreviewInMozilla(const PreviewedDocument& document) { PreviewInNamed(NamedBrowser::Mozilla, document); }
    void PreviewInNamed(NamedBrowser browser, const PreviewedDocument& document);

    /// Previews in the browser with that path. A style sheet that can't be written is told to the user.
    void PreviewIn(TextView path, const PreviewedDocument& document);

    /// Previews in the first of the further browsers, if there is one.
    void PreviewIn1(const PreviewedDocument& document);

    /// Previews in each of the further browsers whose program has that file name.
    void PreviewInOther(TextView name, const PreviewedDocument& document);

    /// What an entry of the browser menu does.
    void PreviewInKey(TextView key, const PreviewedDocument& document);

    /// Starts the browser on the page, which it has a minute to read, with its style sheet. Nothing happens for "" as
    /// the browser.
    void LaunchBrowser(TextView browser, TextView page);

  private:
    [[nodiscard]] Text Locate(NamedBrowser browser);

    Surroundings surroundings_;
};

/// The command line that shows a page in a browser: its program, and the page's path or URL as one argument, whatever
/// it holds.
[[nodiscard]] Texts BrowserCommand(TextView browser, TextView page);

}  // namespace tintora
