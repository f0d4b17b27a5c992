// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/control/estadoBusqueda.hpp"
#include "norvik/pattern/emparejador.hpp"

#include <array>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::inline v0_2 {

/// The texts of the direction list, in its order.
inline constexpr std::array<std::u16string_view, 3> direccionesBusqueda = {u"Todo", u"Arriba", u"Abajo"};

/// What the fields of a find or replace dialog say.
struct Peticion {
    std::u16string texto; ///< a pattern of the editor's dialect
    std::u16string direccion = u"Todo";
    bool soloPalabrasCompletas = false;
    bool coincidirMayusculas = false;
};

/// What the find and the replace dialog do; the windows only fill in a request and call. They share the
/// process's one search state. A pattern that is malformed or runs away is told and changes nothing.
class NORVIK_API Buscador {
public:
    /// Searches the find dialog's text, or another one, which must outlive the searcher. Messages are told by
    /// the services that belong to the text.
    explicit Buscador(DestinoBusqueda& destino = estadoBusqueda()) : destino_(destino) {}

    /// The find dialog is shown for the first time since it was closed: a found text stays visibly selected.
    void abre();
    void cierra();

    /// "Buscar siguiente": selects the next match strictly beyond the caret, or strictly before it.
    /// False when nothing more was found.
    bool buscaSiguiente(const Peticion& peticion);
    /// "Reemplazar": replaces the selection when it is a match, and selects the next one.
    void reemplaza(const Peticion& peticion, std::u16string_view con);
    /// "Reemplazar todo": replaces every match, as one step of Undo, and says how many they were.
    void reemplazaTodo(const Peticion& peticion, std::u16string_view con);

    /// Tells something above the dialog, which stands above all other windows.
    void avisa(std::u16string_view texto, std::u16string_view titulo = {},
               Icono icono = Icono::Informacion) const;
    /// The dialog gives up its place above all windows (false) while a message is shown, and takes it again.
    std::function<void(bool encima)> ponEncima;
    /// Does what may take long, and touches no window, where a person can cancel it; without it that is done
    /// there and then. Who cancels is told nothing. Meanwhile the text may change or go: nothing was found
    /// then.
    std::function<void(const std::function<void(std::stop_token)>& trabajo)> trabaja;

private:
    using Coincidencias = std::vector<Coincidencia>;

    std::optional<Coincidencias> coincidencias(const Peticion& peticion) const;
    bool selecciona(const Coincidencias& halladas, std::int32_t despuesDe, std::int32_t antesDe) const;
    void empieza(const Peticion& peticion);
    void recuerda();

    DestinoBusqueda& destino_;
    EstadoBusqueda& estado_ = estadoBusqueda();
};

} // namespace norvik::inline v0_2
