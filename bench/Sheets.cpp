#include "Sheets.h"

#include "text/NumberText.h"

#include <algorithm>

namespace tintora::bench {

namespace {

template <typename Rule>
Text Filled(std::size_t length, Rule rule) {
    Text sheet;
    for (int number = 0; sheet.size() < length; ++number)
        sheet += rule(number);
    // The end is white space, so that no rule is cut in two.
    const std::size_t lastRule = sheet.rfind(u'}', length - 1);
    sheet.resize(lastRule + 1);
    sheet.resize(length, u' ');
    return sheet;
}

Text Digits(int number) { return NumberText(number).substr(1); }

}  // namespace

Text VariedSheet(std::size_t length) {
    return Filled(length, [](int number) {
        const Text digits = Digits(number);
        switch (number % 4) {
            case 0:
                return u"/* ---------- Section " + digits + u" ---------- */\n\n#part" + digits +
                       u" ul li a:hover {\n    color: #8c4a1f;\n    text-decoration: underline;\n}\n\n";
            case 1:
                return u"div.box" + digits +
                       u" {\n    margin: 0 auto 1.2em;\n    padding: 0.5em 1em;\n    border: 1px solid #d9a566;\n"
                       u"    background: #fff url(images/corner" +
                       digits + u".gif) no-repeat top left;\n}\n\n";
            case 2:
                return u"h1, h2, .title" + digits + u" {\n    font-family: Georgia, \"Times New Roman\", serif;\n}\n\n";
            default:
                return u"table.prices" + digits + u" td {\n    width: " + digits +
                       u"px;\n    vertical-align: top;\n    text-align: left;\n}\n\n";
        }
    });
}

Text SmallRules(std::size_t length) {
    return Filled(length, [](int) { return Text(u"a {top: 1px}\n"); });
}

Text MediaBlocks(std::size_t length) {
    return Filled(length, [](int number) {
        Text block = u"@media print {\n    p.part" + Digits(number) +
                     u" {color: #000; margin: 0 2cm}\n    a {display: none}\n}\n";
        block.resize(std::max<std::size_t>(block.size(), 109), u'\n');
        return block;
    });
}

}  // namespace tintora::bench
