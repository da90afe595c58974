#include "properties/FontFamilyList.h"

#include "language/Words.h"
#include "linking/Paths.h"
#include "text/StringTable.h"
#include "text/Whitespace.h"

#include <algorithm>
#include <utility>

namespace tintora {

Texts FontsOfTab(int index, const Texts& installed) {
    if (index < 1 || index > static_cast<int>(FontSets.size()))
        return {};
    const int fontsString = FontSets[static_cast<std::size_t>(index - 1)].fontsString;
    return fontsString == 0 ? installed : GetWordsFromText(LoadResourceString(fontsString), u"/ ");
}

void FontFamilyList::EditFonts(TextView family) {
    fonts_.clear();
    selected_ = None;
    family_ = family;
    for (std::size_t start = 0; start <= family.size();) {
        const std::size_t comma = std::min(family.find(u',', start), family.size());
        const TextView font = TrimmedView(family.substr(start, comma - start));
        if (!font.empty())
            fonts_.emplace_back(font);
        start = comma + 1;
    }
}

void FontFamilyList::AddOneFont(TextView name) {
    if (name.empty())
        return;
    fonts_.push_back(name.find(u' ') == TextView::npos ? Text(name) : QuoteText(name));
    SetUpCurrentFonts();
}

void FontFamilyList::RemoveOneFont() {
    if (!CanRemove())
        return;
    fonts_.erase(fonts_.begin() + static_cast<std::ptrdiff_t>(selected_));
    selected_ = None;
    SetUpCurrentFonts();
}

void FontFamilyList::MoveUp() {
    if (!CanMoveUp())
        return;
    std::swap(fonts_[selected_], fonts_[selected_ - 1]);
    --selected_;
    SetUpCurrentFonts();
}

void FontFamilyList::MoveDown() {
    if (!CanMoveDown())
        return;
    std::swap(fonts_[selected_], fonts_[selected_ + 1]);
    ++selected_;
    SetUpCurrentFonts();
}

void FontFamilyList::SetUpCurrentFonts() { family_ = JoinItems(fonts_, u", "); }

}  // namespace tintora
