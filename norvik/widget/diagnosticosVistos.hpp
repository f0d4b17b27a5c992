// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/diagnostico.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/widget/resaltes.hpp"

#include <QObject>
#include <QString>

#include <cstdint>
#include <vector>

namespace norvik {

class CajaTextoQt;

/// What a host found wrong with the text: wavy underlines with the words as tool tip. They move with the
/// text, and go with the characters that they stand under.
class DiagnosticosVistos final : public QObject {
    Q_OBJECT

public:
    DiagnosticosVistos(CajaTextoQt& caja, Resaltes& resaltes);

    /// In the place of those of before. Ranges count the units of the text.
    void pon(const std::vector<Diagnostico>& diagnosticos);
    bool hay() const { return !marcas_.empty(); }

    /// What stands in the lines [primera, ultima], 0-based, the worst of each line, in order.
    struct EnLinea {
        std::int32_t linea = 0;
        Gravedad gravedad = Gravedad::Error;
    };
    std::vector<EnLinea> enLineas(std::int32_t primera, std::int32_t ultima) const;
    /// The words of those that a position, or a line, has; of many, how many more there are.
    QString palabrasEn(std::int32_t posicion) const;
    QString palabrasDeLinea(std::int32_t linea) const;
    /// «2 errores, 1 aviso», for those who do not see them.
    QString resumen() const;

signals:
    /// There are others.
    void otros();

protected:
    bool eventFilter(QObject* vista, QEvent* evento) override;

private:
    struct Marca {
        std::int32_t inicio = 0;
        std::int32_t fin = 0;
        Gravedad gravedad = Gravedad::Error;
        QString palabras; ///< none behind many of the same place

        bool esDondeOtra(const Marca& otra) const { return inicio == otra.inicio && fin == otra.fin; }
    };

    void sigue(const CambioDeTexto& cambio);
    std::vector<Resalte> resaltes(std::int32_t desde, std::int32_t hasta) const;
    Resalte resalte(const Marca& marca) const;
    template <typename Condicion>
    QString palabrasDe(Condicion condicion) const;

    CajaTextoQt& caja_;
    Resaltes& resaltes_;
    std::vector<Marca> marcas_;
};

} // namespace norvik
