#include "preview/BrowserPreviews.h"

#include "linking/Paths.h"
#include "linking/TextFiles.h"
#include "preview/BrowserMenu.h"

#include <optional>

namespace tintora {

Texts BrowserCommand(TextView browser, TextView page) { return {Text(browser), Text(page)}; }

Text BrowserPreviews::Locate(NamedBrowser browser) {
    Text path = surroundings_.locations.Get(browser);
    if (FileExists(path))
        return path;
    path = surroundings_.question.LocateFile(ProgramFilter);
    surroundings_.locations.Save(browser, path);
    return path;
}

void BrowserPreviews::PreviewInNamed(NamedBrowser browser, const PreviewedDocument& document) {
    const Text path = Locate(browser);
    if (!path.empty())
        LaunchBrowser(path, surroundings_.making.MakeBrowserPreview(document, nullptr));
}

void BrowserPreviews::PreviewIn(TextView path, const PreviewedDocument& document) {
    LaunchBrowser(path, surroundings_.making.MakeBrowserPreview(document, &surroundings_.messages));
}

void BrowserPreviews::PreviewIn1(const PreviewedDocument& document) {
    const Texts browsers = surroundings_.locations.GetAllPreviewBrowsers();
    if (!browsers.empty())
        PreviewIn(browsers.front(), document);
}

void BrowserPreviews::PreviewInOther(TextView name, const PreviewedDocument& document) {
    for (const Text& path : surroundings_.locations.GetAllPreviewBrowsers()) {
        if (GetFileNamePart(path) == name)
            PreviewIn(path, document);
    }
}

void BrowserPreviews::PreviewInKey(TextView key, const PreviewedDocument& document) {
    if (const std::optional<NamedBrowser> browser = BrowserForKey(key))
        PreviewInNamed(*browser, document);
    else
        PreviewInOther(key, document);
}

void BrowserPreviews::LaunchBrowser(TextView browser, TextView page) {
    if (browser.empty() || page.empty() || !surroundings_.processes.Start(BrowserCommand(browser, page)))
        return;
    surroundings_.making.ToDelete().HoldForAMinute(page);
    surroundings_.making.ToDelete().HoldForAMinute(surroundings_.making.Last().GetLastPreviewCSSFile());
}

}  // namespace tintora
