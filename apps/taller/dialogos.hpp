// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/destino.hpp"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace norvik::taller {

/// What is to become of a file that another program wrote, when it is to be saved here.
enum class Choque : std::uint8_t { Sobrescribir, GuardarComo, Recargar, Cancelar };

/// The questions that the workbench asks, so that tests can answer them.
class Dialogos {
public:
    Dialogos() = default;
    Dialogos(const Dialogos&) = delete;
    Dialogos& operator=(const Dialogos&) = delete;
    virtual ~Dialogos() = default;

    virtual Destino pregunta(const QString& pregunta, const QString& guardar, const QString& descartar) = 0;
    /// Asks, and saves with `accion` if that is the answer; false when the work stays as it is.
    template <typename Accion>
    bool guardaOPierde(const QString& texto, Accion accion) {
        return cumple(pregunta(texto, QStringLiteral("&Guardar"), QStringLiteral("&No guardar")), accion);
    }
    virtual Choque preguntaChoque(const QString& pregunta) = 0;
    /// A file's path, or nothing when the user gives up. `filtros` as Qt writes them.
    virtual std::optional<QString> eligeParaAbrir(const QString& titulo, const QString& filtros) = 0;
    /// `propuesto` is a path or a name; what has no ending of its own gets `extension`, when there is one.
    virtual std::optional<QString> eligeParaGuardar(const QString& titulo, const QString& filtros,
                                                    const QString& propuesto, const QString& extension) = 0;
    /// Another name in the place of `ahora`, of which `reparos` has nothing to say, or nothing when the user
    /// gives up.
    virtual std::optional<QString> pideNombre(const QString& titulo, const QString& ahora,
                                              const std::function<QString(const QString&)>& reparos) = 0;
};

} // namespace norvik::taller
