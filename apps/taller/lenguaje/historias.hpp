// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/widget/trabajoDeFondo.hpp"

#include <QObject>

#include <cstddef>
#include <memory>
#include <stop_token>
#include <vector>

namespace norvik::taller {

/// Whether a diagnostic has a story.
inline bool esConflicto(const Diagnostico& diagnostico) {
    return diagnostico.codigo == Codigo::Conflicto || diagnostico.codigo == Codigo::ConflictoCallado;
}

/// The stories of a language's conflicts, found in a thread of its own once somebody wants to read one: they
/// take longer than a person types. A story that the classic table keeps quiet about gets the state of its
/// cell in that table.
class Historias final : public QObject {
    Q_OBJECT

public:
    /// Those of another language are of no use any more.
    void pon(const std::shared_ptr<const LenguajeEstudiado>& lenguaje);
    /// Or that they cannot be.
    bool conocidas() const { return !contados_.empty(); }
    /// The stories of the diagnostic of this number; null while they are not known, which begins the search.
    const std::vector<HistoriaConflicto>* de(std::size_t diagnostico);
    /// What cures its first story; nothing while that is not known.
    const std::vector<Arreglo>& curas(std::size_t diagnostico) const;

signals:
    /// They are known.
    void contadas();

private:
    /// What there is to tell of a diagnostic.
    struct Contado {
        std::vector<HistoriaConflicto> historias;
        std::vector<Arreglo> curas;
    };
    using Contados = std::vector<Contado>;

    void empieza();
    static Contados cuenta(const LenguajeEstudiado& lenguaje, const std::stop_token& parada);

    std::shared_ptr<const LenguajeEstudiado> lenguaje_;
    Contados contados_; ///< of that language, in the order of its diagnostics; none at first
    TrabajoDeFondo<Contados> trabajo_;
};

} // namespace norvik::taller
