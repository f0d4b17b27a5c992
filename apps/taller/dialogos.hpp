#pragma once

#include <QString>

#include <cstdint>
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

    virtual Destino pregunta(const QString& pregunta, const QString& guardar, const QString& descartar) = 0;
    /// Asks, and saves with `accion` if that is the answer. False when the work stays as it is: the user
    /// gives up, or it could not be saved.
    template <typename Accion>
    bool salvaOPierde(const QString& texto, const QString& guardar, const QString& descartar, Accion accion) {
        switch (pregunta(texto, guardar, descartar)) {
        case Destino::Guardar:
            return accion();
        case Destino::Descartar:
            return true;
        case Destino::Cancelar:
            return false;
        }
        return false;
    }
    template <typename Accion>
    bool guardaOPierde(const QString& texto, Accion accion) {
        return salvaOPierde(texto, QStringLiteral("&Guardar"), QStringLiteral("&No guardar"), accion);
    }
    /// A file's path, or nothing when the user gives up. `filtros` as Qt writes them.
    virtual std::optional<QString> eligeParaAbrir(const QString& titulo, const QString& filtros) = 0;
    /// `propuesto` is a path or a name; what has no ending of its own gets `extension`, when there is one.
    virtual std::optional<QString> eligeParaGuardar(const QString& titulo, const QString& filtros,
                                                    const QString& propuesto, const QString& extension) = 0;
};

} // namespace norvik::taller
