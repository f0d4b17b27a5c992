// SPDX-License-Identifier: MIT

#include "norvik/base/html.hpp"

namespace norvik::inline v0_2 {

std::u16string escapaHtml(std::u16string_view texto) {
    std::u16string html;
    for (const char16_t c : texto) {
        if (c == u'<')
            html += u"&lt;";
        else if (c == u'>')
            html += u"&gt;";
        else if (c == u'&')
            html += u"&amp;";
        else if (c == u'"')
            html += u"&quot;";
        else if (esDeDireccion(c))
            html += u'\uFFFD';
        else
            html += c;
    }
    return html;
}

} // namespace norvik::inline v0_2
