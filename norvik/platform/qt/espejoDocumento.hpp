// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"

#include <QTextBlock>
#include <QTextDocument>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvik {

// A Qt document that shows a text. A line break is one position of the document and one or two characters of
// the text; all else is one position for one character. Positions are mapped by line: by its number from the
// start, or by its number from the end where a change stands before it and only one side knows of it yet.
//
// Characters that a document takes for a break of its own, that cannot be seen, or that are more marks than a
// letter has, are shown by a substitute; the text keeps them.
class EspejoDocumento {
public:
    EspejoDocumento(QTextDocument& documento, const FuenteTexto& fuente)
        : documento_(documento), fuente_(fuente) {}

    /// Position in the document of a character whose left side both agree on, and back.
    int enDocumento(std::int32_t posicion) const;
    std::int32_t enTexto(int posicion) const;

    /// Shows what [inicio, fin) of the text now is; to both sides of it the document shows the text already.
    void copia(std::int32_t inicio, std::int32_t fin);

    /// An edit made in the document that the text does not have yet: `nuevo`, which stands in [desde, hasta)
    /// of the document, in the place of the text's characters [inicio, fin).
    struct Edicion {
        std::int32_t inicio = 0;
        std::int32_t fin = 0;
        std::u16string nuevo;
        int desde = 0;
        int hasta = 0;
    };
    /// Shows all of the text anew, whatever the document has now; an edit that the text does not have is
    /// lost.
    void copiaTodo();
    /// Takes note of a change as the document reports it, and what those since the last question come to.
    void anota(int desde, int quitados, int puestos);
    bool hayEdicion() const { return cambio_.has_value(); }
    Edicion dameEdicion();
    /// What the edit really changes: documents report characters beside a change, too.
    Edicion recortada(Edicion edicion) const;
    /// Position that a place of the document will have in the text once it has the edit.
    std::int32_t trasEdicion(const Edicion& edicion, int posicion) const;

private:
    /// What was changed: all but so many positions at the start and at the end.
    struct Cambio {
        int delante = 0;
        int detras = 0;
    };

    int ultimaPosicion() const { return documento_.characterCount() - 1; }
    std::int32_t finDeLinea(std::int32_t linea) const;
    int enDocumentoDesdeElFinal(std::int32_t posicion) const;
    std::int32_t enTextoDesdeElFinal(int posicion) const;
    std::u16string lee(int desde, int hasta) const;

    QTextDocument& documento_;
    const FuenteTexto& fuente_;
    std::optional<Cambio> cambio_;
};

} // namespace norvik
