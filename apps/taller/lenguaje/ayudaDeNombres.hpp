// SPDX-License-Identifier: MIT

#pragma once

#include "../dialogos.hpp"
#include "editorTexto.hpp"

#include "norvik/checks/nombres.hpp"

#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace norvik::taller {

/// What a person may ask of a name in the specification, by key or with the mouse: where it comes from, what
/// it means, another name in its place.
class AyudaDeNombres final : public QObject {
    Q_OBJECT

public:
    enum class Pregunta : std::uint8_t { PorTecla, ConRaton };
    /// What there is to say of a name; empty when that is nothing.
    using Palabras = std::function<QString(const NombreEscrito&, Pregunta)>;

    /// The editor and the dialogs outlive it.
    AyudaDeNombres(EditorTexto& editor, Dialogos& dialogos, Palabras palabras);

    void vaAlOrigen();
    void explica();
    void cambia();
    /// The name that the caret is at; without one it says so.
    std::optional<std::u16string> elegido();

signals:
    void aviso(const QString& texto);

protected:
    bool eventFilter(QObject* vista, QEvent* evento) override;

private:
    std::optional<NombreEscrito> nombreEn(std::int32_t desplazamiento) const;
    std::optional<NombreEscrito> nombreBajo(const QPoint& punto) const;
    std::optional<NombreEscrito> enCursor();
    void vaAlOrigenDe(const NombreEscrito& nombre);
    bool pulsa(const QPoint& punto);
    bool muestraAyuda(const NombreEscrito& nombre, Pregunta pregunta, const QPoint& enPantalla);

    EditorTexto& editor_;
    Dialogos& dialogos_;
    const Palabras palabras_;
    bool pulsado_ = false; ///< the button that went down here comes up here
};

} // namespace norvik::taller
