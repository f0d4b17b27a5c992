// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/pliegues.hpp"

#include <QObject>

#include <cstdint>
#include <vector>

namespace norvik {

class CajaTextoQt;

// A fold is remembered by where its first line begins, which moves with the text; what it hides are the lines
// that the construction has that begins there now. One whose construction is no more is open, and so is one
// that hides the caret. The document's lines are hidden and shown when something about that is another.

/// The constructions that the editor shows folded.
class Plegado final : public QObject {
    Q_OBJECT

public:
    Plegado(CajaTextoQt& caja, const Pliegues& pliegues);

    /// Off, nothing is folded and nothing can be.
    void permite(bool permitido);
    bool permitido() const { return permitido_; }
    /// There may be other constructions.
    void otros();
    /// To be called when the editor is up to date.
    void sigue();

    enum class Estado : std::uint8_t { Ninguno, Abierto, Plegado };
    /// What a line, 0-based, is the first of.
    Estado estado(std::int32_t linea) const;
    void cambia(std::int32_t linea);
    /// The innermost construction that the caret is in, or the first line of which it is on.
    void cambiaLaDelCursor();

signals:
    void cambiado();

private:
    const Pliegue* pliegueDe(std::int32_t linea) const;
    bool estaPlegada(std::int32_t linea) const;
    bool despliegaElCursor();
    void muestraLineas();

    CajaTextoQt& caja_;
    const Pliegues& pliegues_;
    std::vector<Pliegue> actuales_;      ///< of the text as it is, by their first lines
    std::vector<std::int32_t> plegados_; ///< where their first lines begin
    bool permitido_ = false;
    bool porMirar_ = false; ///< text, constructions or folds are others
    bool hayOcultas_ = false;
};

} // namespace norvik
