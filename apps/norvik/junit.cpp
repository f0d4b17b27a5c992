// SPDX-License-Identifier: MIT

#include "junit.hpp"

#include "salida.hpp"

#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

// Inside quotes; control characters, which XML has no place for, as a terminal shows them.
std::string enAtributo(std::u16string_view texto) {
    std::u16string escapado;
    for (const char16_t c : visible(texto)) {
        switch (c) {
        case u'&':
            escapado += u"&amp;";
            break;
        case u'<':
            escapado += u"&lt;";
            break;
        case u'"':
            escapado += u"&quot;";
            break;
        default:
            escapado += c;
        }
    }
    return aUtf8(escapado);
}

} // namespace

std::string enJunit(const std::vector<CasoProbado>& casos) {
    const auto fallos = std::ranges::count_if(casos, [](const auto& c) { return !c.diferencia.empty(); });
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"norvik prueba\" tests=\"" +
        std::to_string(casos.size()) + "\" failures=\"" + std::to_string(fallos) + "\">\n";
    for (const auto& [nombre, diferencia] : casos) {
        xml += "  <testcase classname=\"norvik\" name=\"" + enAtributo(nombre) + "\"";
        if (diferencia.empty())
            xml += "/>\n";
        else
            xml += ">\n    <failure message=\"" + enAtributo(diferencia) + "\"/>\n  </testcase>\n";
    }
    return xml + "</testsuite>\n";
}

} // namespace norvik::orden
