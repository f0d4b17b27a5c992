// SPDX-License-Identifier: MIT

#include "junit.hpp"

#include "salida.hpp"

#include "norvik/base/html.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>

namespace norvik::orden {

namespace {

// Inside quotes; control characters, which XML has no place for, as a terminal shows them.
std::string enAtributo(std::u16string_view texto) {
    return aUtf8(escapaHtml(visible(texto)));
}

} // namespace

std::string enJunit(const std::vector<CasoProbado>& casos) {
    const auto fallos = std::ranges::count_if(casos, [](const auto& c) { return !c.diferencia.empty(); });
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"norvik prueba\" tests=\"" +
        std::to_string(casos.size()) + "\" failures=\"" + std::to_string(fallos) + "\">\n";
    for (const auto& [nombre, diferencia] : casos) {
        xml += R"(  <testcase classname="norvik" name=")" + enAtributo(nombre) + '"';
        if (diferencia.empty())
            xml += "/>\n";
        else
            xml += ">\n    <failure message=\"" + enAtributo(diferencia) + "\"/>\n  </testcase>\n";
    }
    return xml + "</testsuite>\n";
}

} // namespace norvik::orden
