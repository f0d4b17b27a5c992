// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/qt/espejoDocumento.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/noticiasDeCaja.hpp"

#include <QObject>
#include <QTextCursor>
#include <QTextLayout>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace norvik {

class VistaTexto;

// The text box in a window. The box in memory is its text, colours and selection, exactly as without a
// window; a Qt editor shows them and edits. What hosts do to the box goes to the model and is copied to the
// editor; what the user does to the editor is noticed and done to the model, which raises the events.
//
// Text is copied at once, selection and colours when the work at hand is over: thousands of changes of the
// selection and of colours while a text is coloured cost the editor one update, and no state between them is
// ever seen. Colours are layout formats of the lines, not text formats: they are no edits and are cheap.
//
// Qt lays a line out as a whole whenever something in it changes, at a cost of the square of its runs. So
// they are moved with the text before it does, and of a long line those alone are put that can be seen soon.

/// The text box shown by Qt. Must be destroyed before its parent; any receiver of its events may do that.
class CajaTextoQt final : public CajaTexto {
public:
    explicit CajaTextoQt(QWidget* padre = nullptr);
    CajaTextoQt(const CajaTextoQt&) = delete;
    CajaTextoQt& operator=(const CajaTextoQt&) = delete;
    ~CajaTextoQt() override = default;

    void ponFuente(const Fuente& fuente) override;
    void ponOcultaSeleccion(bool oculta) override;
    void ponSoloLectura(bool soloLectura) override;
    void ponModificado(bool modificado) override;
    std::int32_t primeraLineaVisible() const override;
    std::int32_t altoDeLinea() const override;
    void ponIzquierda(std::int32_t twips) override;
    void enfoca() override;
    void bloqueaDibujo() override { ++bloqueos_; }
    void desbloqueaDibujo() override;

    QWidget& ventana();

    // For those who show something over the text or beside it.
    /// Characters [inicio, fin).
    struct Tramo {
        std::int32_t inicio = 0;
        std::int32_t fin = 0;
        bool operator==(const Tramo&) const = default;
    };
    VistaTexto& vista() const { return *vista_; }
    const NoticiasDeCaja& noticias() const { return noticias_; }
    /// `noticias().alDia()` will be told once what is being done is over.
    void pideAlDia();
    /// The characters that are seen: one tramo for each line that is, wholly or in part, in their order. Of
    /// a long line there is no more than what is near, of any other the whole.
    std::vector<Tramo> tramosVistos() const;
    /// A tramo as the editor has it, when it is up to date.
    QTextCursor cursorDe(const Tramo& tramo) const;
    /// The character at a point of the editor's view.
    std::optional<std::int32_t> caracterEn(const QPoint& punto) const;
    /// Selects characters and scrolls to where they begin.
    void muestra(std::int32_t inicio, std::int32_t longitud);
    /// Shows the text so many times as large as its font is.
    void ponAumento(double aumento);

    /// Receives the text of a failure that was raised while an event of the user was served.
    std::function<void(const std::u16string& texto)> alFallar;

    // For the editor that shows the box.
    /// Serves an event of the user: the editor is up to date before it and after it. What is raised on the
    /// way goes no further and is told afterwards, if the box is still there.
    template <typename Accion>
    void atiende(const Accion& accion) {
        const auto viva = testigo();
        protege([this] { ponAlDia(); });
        protege(accion);
        if (!viva.expired()) acaba();
    }
    template <typename Accion>
    void protege(const Accion& accion) {
        const auto viva = testigo();
        const std::u16string fallo = falloDe(accion);
        if (!fallo.empty() && !viva.expired()) sinFallos([&] { avisaFallo(fallo); });
    }
    /// Inserts text that the user brings from elsewhere.
    void pega(const QString& texto);
    /// The same at a place of the document, where it ends selected; moved there, when it was the selection.
    void suelta(const QString& texto, int posicion, bool mueve);
    /// The selection's text as other programs take it.
    QString textoParaCopiar() const;
    void ponAlDia();
    /// The same before a key edits what is selected, whoever has the focus.
    void preparaEdicion();
    void recogeSeleccion();
    void repinta();
    /// The focus came or went.
    void cambiaFoco(bool enfocada);
    /// Composed text that is not yet part of the text came to the caret's line, or went.
    void cambiaComposicion();

protected:
    void alSustituir(const CambioDeTexto& sustitucion) override;
    void alSeleccionar() override { pideAlDia(); }
    void alPintar(std::int32_t inicio, std::int32_t longitud) override;

private:
    struct DespideVista {
        void operator()(VistaTexto* vista) const;
    };

    void conecta();
    void acaba();
    void ponLetra();
    void recogeEdicion();
    void tomaEdicion();
    void rehaceVista();
    void avisaFallo(const std::u16string& texto);
    Tramo seleccionModelo() const;
    Tramo seleccionVista() const;
    void ponSeleccionEnVista();
    void ponEstilosEnVista();
    void ponEstilosEnLineas(std::int32_t primera, std::int32_t ultima);
    bool ponEstilosEnLinea(const QTextBlock& bloque);
    Tramo columnasCerca(const QTextBlock& bloque, int anchos) const;
    QList<QTextLayout::FormatRange> formatos(std::int32_t inicio, const Tramo& columnas) const;
    void llevaEstilos(int desde, int quitados, int puestos);
    void ensuciaLargas();
    QTextCharFormat formato(const Estilo& estilo) const;
    void ensucia(Tramo tramo);

    void tomaSeleccion();

    const std::unique_ptr<VistaTexto, DespideVista> vista_;
    NoticiasDeCaja noticias_;
    QObject contexto_; ///< of what the editor is to call; it goes before the editor does
    EspejoDocumento espejo_;
    Tramo puesta_;               ///< selection that the editor was last given, or that was last taken from it
    Tramo sincronizada_;         ///< the model's selection then
    std::optional<Tramo> sucio_; ///< characters whose style the editor may not show
    int bloqueos_ = 0;
    double aumento_ = 1;
    bool copiando_ = false;          ///< the editor changes because of the model
    bool deLaVista_ = false;         ///< the model's next change is what the editor has already
    bool vistaAtrasada_ = false;     ///< the editor's selection is not the model's
    bool seleccionALaVista_ = false; ///< the editor has the focus
    bool vistaPorRehacer_ = false;   ///< the editor has an edit that could not be done to the model
    bool alDiaPedido_ = false;
    bool otraParteVista_ = false; ///< the editor shows other lines or columns
    bool hayNovedad_ = false;     ///< since it was last told that the editor is up to date
    bool falloPendiente_ = false;
};

} // namespace norvik
