// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/widget/trabajoDeFondo.hpp"

#include <QObject>

#include <cstddef>
#include <memory>
#include <vector>

namespace norvik::taller {

/// Whether a diagnostic has a story.
inline bool esConflicto(const Diagnostico& diagnostico) {
    return diagnostico.codigo == Codigo::Conflicto || diagnostico.codigo == Codigo::ConflictoCallado;
}

/// The stories of a language's conflicts, found in a thread of its own once somebody wants to read one: they
/// take longer than a person types.
class Historias final : public QObject {
    Q_OBJECT

public:
    /// Those of another language are of no use any more.
    void pon(const std::shared_ptr<const LenguajeEstudiado>& lenguaje);
    bool conocidas() const { return !hallazgos_.empty(); }
    /// The stories of the diagnostic of this number; null while they are not known, which begins the search.
    const std::vector<HistoriaConflicto>* de(std::size_t diagnostico);

signals:
    /// They are known.
    void contadas();

private:
    void empieza();

    std::shared_ptr<const LenguajeEstudiado> lenguaje_;
    std::vector<Hallazgo> hallazgos_; ///< of that language, in the order of its diagnostics; none at first
    TrabajoDeFondo<std::vector<Hallazgo>> trabajo_;
};

} // namespace norvik::taller
