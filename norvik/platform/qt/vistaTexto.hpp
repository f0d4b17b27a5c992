// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/qt/servido.hpp"

#include <QPlainTextEdit>
#include <QTextBlock>

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace norvik {

class CajaTextoQt;

/// The editor that shows a text box, and turns what the user does into the box's events. Plain text only,
/// without line wrapping, without an undo of its own. Whoever receives an event may destroy the box: what is
/// left of the handler then finds none.
class VistaTexto final : public Servido<QPlainTextEdit> {
public:
    VistaTexto(CajaTextoQt& caja, QWidget* padre) : Servido(padre), caja_(&caja) {}

    /// To be called once the box is whole: from here on the editor tells it what happens.
    void configura();

    /// The box goes.
    void olvidaCaja() { caja_ = nullptr; }

    /// The person may move about and copy, and nothing else.
    void ponSoloLectura(bool soloLectura);
    /// What a person does with a key: the host hears of it as it does then.
    void teclea(Qt::Key tecla, Qt::KeyboardModifiers teclas);
    /// To the clipboard, what is selected in the box, whether it is seen or not.
    void copia();

    int primeraLineaVisible() const { return firstVisibleBlock().blockNumber(); }
    /// A line that is seen, wholly or in part: its number from 0, and where it is in the view.
    struct Linea {
        int numero = 0;
        int arriba = 0;
        int alto = 0;
    };
    /// From the first one down.
    std::vector<Linea> lineasVistas() const;
    /// Characters [desde, hasta) of a line that are seen of it; none when it is not.
    struct Columnas {
        int desde = 0;
        int hasta = 0;
    };
    Columnas columnasVistas(const QTextBlock& linea) const;
    /// The line at a height of the view.
    std::optional<int> lineaEn(int altura) const;
    /// Position in the document of the character at a point of the view.
    std::optional<int> caracterEn(const QPoint& punto) const;
    /// Scrolls to a position of the document that is not seen.
    void acerca(int posicion);

protected:
    bool event(QEvent* evento) override;
    bool viewportEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    bool canInsertFromMimeData(const QMimeData* datos) const override;
    void insertFromMimeData(const QMimeData* datos) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    bool hayCaja() const { return caja_ != nullptr; }
    bool seVeElCursor(int alto) const;
    template <typename Accion>
    void atiende(Accion accion);
    bool seRepite(const QKeyEvent& tecla) const;
    void pulsa(QKeyEvent& evento);
    void escribe(QKeyEvent& evento);
    QString filtra(const QString& texto);
    bool avisaRaton(const CajaTexto::Eventos::Raton& evento, const QMouseEvent& raton);
    void muestraMenu(const QPoint& lugar);

    CajaTextoQt* caja_;               ///< null once it has gone
    std::set<std::uint64_t> bajadas_; ///< keys that went down here and have not come up
    struct Soltada {
        std::uint64_t tecla = 0;
        std::uint64_t cuando = 0; ///< by the clock of the events
    };
    Soltada soltadaAjena_; ///< the last one that came up here and had gone down elsewhere
};

} // namespace norvik
