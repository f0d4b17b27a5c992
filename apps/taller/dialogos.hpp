#pragma once

#include "norvik/platform/sistema.hpp"

#include <QString>

#include <optional>

namespace norvik::taller {

/// What is to become of work that is about to be lost.
enum class Destino : std::uint8_t { Guardar, Descartar, Cancelar };

/// The questions that the workbench asks, so that tests can answer them.
class Dialogos {
public:
    Dialogos() = default;
    Dialogos(const Dialogos&) = delete;
    Dialogos& operator=(const Dialogos&) = delete;
    virtual ~Dialogos() = default;

    virtual void avisa(const Mensaje& mensaje) = 0;
    virtual Destino preguntaGuardar(const QString& pregunta) = 0;
    /// A file's path, or nothing when the user gives up. `filtros` as Qt writes them.
    virtual std::optional<QString> eligeParaAbrir(const QString& titulo, const QString& filtros) = 0;
    /// `propuesto` is a path or a name; what has no ending of its own gets `extension`, when there is one.
    virtual std::optional<QString> eligeParaGuardar(const QString& titulo, const QString& filtros,
                                                    const QString& propuesto, const QString& extension) = 0;
};

} // namespace norvik::taller
