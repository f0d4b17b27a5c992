// SPDX-License-Identifier: MIT

// The steps of an accepted parse are its tree in post-order: a token, or a reduction behind its children. A
// node is found there by the sizes of the subtrees before it. The tree keeps pre-order instead: the first
// child follows its parent, the next sibling stands behind the subtree, and the tokens of any subtree are
// neighbours in one list. Both passes take a constant time a node.
#include "norvik/parser/arbolAnalisis.hpp"

#include "norvik/base/errores.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/parser/lectura.hpp"
#include "norvik/parser/textoAnalizado.hpp"

#include <algorithm>
#include <utility>

namespace norvik::inline v0_2 {

struct Nodo::Contenido {
    struct Ficha {
        std::uint32_t fin = 0;    ///< place behind its subtree
        std::uint32_t padre = 0;  ///< the root is its own
        std::uint32_t tokens = 0; ///< how many stand before it
        std::int16_t regla = 0;
    };

    explicit Contenido(std::unique_ptr<const TextoAnalizado> suyo) : texto(std::move(suyo)) {}

    const TokenSituado& tokenDe(std::uint32_t nodo) const { return texto->tokens[fichas[nodo].tokens]; }
    const Vocabulario::Regla& reglaDe(std::uint32_t nodo) const {
        return texto->vocabulario->reglas[static_cast<std::size_t>(fichas[nodo].regla) - 1];
    }
    /// First character of a node and the one behind its last.
    std::pair<std::size_t, std::size_t> extremos(std::uint32_t nodo) const {
        const Ficha& ficha = fichas[nodo];
        const auto& tokens = texto->tokens;
        const std::size_t hasta = ficha.fin < fichas.size() ? fichas[ficha.fin].tokens : tokens.size();
        if (hasta > ficha.tokens) return {tokens[ficha.tokens].inicio, tokens[hasta - 1].fin};
        const std::size_t anterior = ficha.tokens == 0 ? 0 : tokens[ficha.tokens - 1].fin;
        return {anterior, anterior};
    }

    std::unique_ptr<const TextoAnalizado> texto;
    std::vector<Ficha> fichas;
};

namespace {

std::size_t simbolosDe(std::int16_t regla, const Vocabulario& vocabulario) {
    if (regla == 0) return 0;
    return static_cast<std::size_t>(vocabulario.reglas[static_cast<std::size_t>(regla) - 1].simbolos);
}

// Sizes of the subtrees by step; none when the steps are not those of one tree.
std::vector<std::uint32_t> tamanos(std::span<const std::int16_t> pasos, const Vocabulario& vocabulario) {
    std::vector<std::uint32_t> tamano;
    tamano.reserve(pasos.size());
    for (const std::int16_t regla : pasos) {
        std::size_t hijo = tamano.size();
        for (std::size_t n = simbolosDe(regla, vocabulario); n > 0; --n) {
            if (hijo == 0) return {};
            hijo -= tamano[hijo - 1];
        }
        tamano.push_back(static_cast<std::uint32_t>(tamano.size() - hijo + 1));
    }
    if (tamano.empty() || tamano.back() != tamano.size()) return {};
    return tamano;
}

std::u16string no(std::u16string_view que, std::size_t indice) {
    return std::u16string(u"Índice no válido: ")
        .append(que)
        .append(aTexto(static_cast<std::int64_t>(indice)));
}

} // namespace

ArbolAnalisis::ArbolAnalisis() = default;
ArbolAnalisis::ArbolAnalisis(ArbolAnalisis&&) noexcept = default;
ArbolAnalisis& ArbolAnalisis::operator=(ArbolAnalisis&&) noexcept = default;
ArbolAnalisis::~ArbolAnalisis() = default;
ArbolAnalisis::ArbolAnalisis(std::unique_ptr<const Nodo::Contenido> contenido)
    : contenido_(std::move(contenido)) {}

std::optional<ArbolAnalisis> ArbolAnalisis::construye(std::unique_ptr<const TextoAnalizado> texto,
                                                      std::span<const std::int16_t> pasos) {
    const Vocabulario& vocabulario = *texto->vocabulario;
    const std::vector<std::uint32_t> tamano = tamanos(pasos, vocabulario);
    if (tamano.empty()) return std::nullopt;
    auto contenido = std::make_unique<Nodo::Contenido>(std::move(texto));
    auto& fichas = contenido->fichas;
    fichas.resize(pasos.size());
    // By step: its place in the tree, which its parent, a later step, has told.
    std::vector<std::uint32_t> sitio(pasos.size());
    for (std::size_t paso = pasos.size(); paso-- > 0;) {
        const std::uint32_t aqui = sitio[paso];
        std::uint32_t fin = aqui + tamano[paso];
        fichas[aqui].regla = pasos[paso];
        fichas[aqui].fin = fin;
        std::size_t hijo = paso;
        for (std::size_t n = simbolosDe(pasos[paso], vocabulario); n > 0; --n) {
            const std::uint32_t suyo = tamano[hijo - 1];
            fin -= suyo;
            sitio[hijo - 1] = fin;
            fichas[fin].padre = aqui;
            hijo -= suyo;
        }
    }
    std::uint32_t tokens = 0;
    for (auto& ficha : fichas) {
        ficha.tokens = tokens;
        if (ficha.regla == 0) ++tokens;
    }
    if (tokens != contenido->texto->tokens.size()) return std::nullopt;
    return ArbolAnalisis(std::move(contenido));
}

std::size_t ArbolAnalisis::numNodos() const {
    return esVacio() ? 0 : contenido_->fichas.size();
}

Nodo ArbolAnalisis::operator[](std::size_t indice) const {
    if (indice >= numNodos()) throw IndiceNoValido(no(u"el árbol no tiene el nodo ", indice));
    return {contenido_.get(), static_cast<std::uint32_t>(indice)};
}

std::u16string ArbolAnalisis::toString() const {
    if (esVacio()) return {};
    std::u16string texto;
    std::size_t nivel = 0;
    const auto entra = [&](Nodo nodo) {
        texto.append(2 * nivel++, u' ');
        if (nodo.esToken()) {
            const Punto lugar = nodo.rango().inicio;
            texto.append(u"'").append(nodo.lexema()).append(u"' (").append(aTexto(lugar.linea));
            texto.append(u", ").append(aTexto(lugar.columna)).append(u")\n");
        } else {
            texto.append(nodo.nombre()).append(u" -> ").append(nodo.cuerpo());
            texto.append(u" [").append(aTexto(nodo.regla())).append(u"]\n");
        }
    };
    recorre(raiz(), entra, [&](Nodo /*nodo*/) { --nivel; });
    return texto;
}

std::int16_t Nodo::regla() const {
    return contenido_->fichas[indice_].regla;
}

bool Nodo::esInsertado() const {
    return esToken() &&
           std::ranges::binary_search(contenido_->texto->insertados, contenido_->fichas[indice_].tokens);
}

std::int16_t Nodo::token() const {
    return esToken() ? contenido_->texto->definicionDe(contenido_->tokenDe(indice_)).token : std::int16_t{0};
}

std::u16string_view Nodo::nombre() const {
    return esToken() ? contenido_->texto->nombreDe(contenido_->tokenDe(indice_))
                     : std::u16string_view(contenido_->reglaDe(indice_).cabeza);
}

std::u16string_view Nodo::cuerpo() const {
    return esToken() ? std::u16string_view{} : std::u16string_view(contenido_->reglaDe(indice_).cuerpo);
}

Rango Nodo::rango() const {
    const auto [inicio, fin] = contenido_->extremos(indice_);
    return contenido_->texto->lugares.rango(inicio, fin);
}

std::u16string_view Nodo::texto() const {
    const auto [inicio, fin] = contenido_->extremos(indice_);
    return std::u16string_view(contenido_->texto->texto).substr(inicio, fin - inicio);
}

std::u16string_view Nodo::lexema() const {
    if (!esToken()) return {};
    return sinDelimitadores(texto(), contenido_->texto->definicionDe(contenido_->tokenDe(indice_)).tipo);
}

std::string Nodo::lexemaUtf8() const {
    return aUtf8(lexema());
}

Hijos Nodo::hijos() const {
    return Hijos(*this);
}

std::size_t Nodo::numHijos() const {
    return simbolosDe(regla(), *contenido_->texto->vocabulario);
}

Nodo Nodo::operator[](std::size_t indice) const {
    if (indice >= numHijos()) throw IndiceNoValido(no(u"el nodo no tiene el hijo ", indice));
    auto hijo = hijos().begin();
    while (indice-- > 0) ++hijo;
    return *hijo;
}

std::optional<Nodo> Nodo::padre() const {
    if (indice_ == 0) return std::nullopt;
    return Nodo(contenido_, contenido_->fichas[indice_].padre);
}

Hijos::Hijos(Nodo padre)
    : primero_(padre.contenido_, padre.indice_ + 1),
      fin_(padre.contenido_, padre.contenido_->fichas[padre.indice_].fin) {}

Hijos::Iterador& Hijos::Iterador::operator++() {
    nodo_ = Nodo(nodo_.contenido_, nodo_.contenido_->fichas[nodo_.indice_].fin);
    return *this;
}

} // namespace norvik::inline v0_2
