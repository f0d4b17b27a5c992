// SPDX-License-Identifier: MIT

#include "dibujo.hpp"

#include "recorrido.hpp"
#include "salida.hpp"

#include "norvik/base/texto.hpp"

#include <vector>

namespace norvik::orden {

namespace {

constexpr std::size_t nivelesDibujados = 60;

std::u16string rotulo(const Arbol& nodo) {
    if (esInterior(nodo)) {
        const std::u16string regla = aTexto(nodo.GetNumRegla()) + u". ";
        return regla + std::u16string(nodo.GetNomRegla()) + u" -> " + std::u16string(nodo.GetRegla());
    }
    return u"'" + visible(nodo.GetLexema()) + u"' (Línea " + aTexto(nodo.GetLinea()) + u", Columna " +
           aTexto(nodo.GetColumna()) + u")";
}

/// The lines that lead from the ancestors of each node to it.
class Sangria {
public:
    std::u16string de(const Paso& paso) {
        if (paso.nivel == 0) return {};
        ultimos_.resize(paso.nivel - 1);
        const std::size_t omitidos =
            ultimos_.size() < nivelesDibujados ? 0 : ultimos_.size() - nivelesDibujados + 1;
        std::u16string sangria;
        if (omitidos > 0) sangria = u"(+" + aTexto(static_cast<std::int64_t>(omitidos)) + u") ";
        for (std::size_t i = omitidos; i < ultimos_.size(); ++i) sangria += ultimos_[i] ? u"   " : u"│  ";
        ultimos_.push_back(paso.ultimo);
        return sangria + (paso.ultimo ? u"└─ " : u"├─ ");
    }

private:
    std::vector<bool> ultimos_; ///< for each level below the root: the ancestor there is a last child
};

} // namespace

void dibuja(const Arbol& raiz, const std::function<void(std::string_view)>& escribe) {
    Sangria sangria;
    recorre(
        raiz,
        [&](const Paso& paso) {
            escribe(aUtf8(sangria.de(paso) + rotulo(paso.nodo)));
            escribe("\n");
        },
        [](const Arbol& /*nodo*/) {});
}

} // namespace norvik::orden
