// SPDX-License-Identifier: MIT

#include "norvik/widget/completado.hpp"

#include "norvik/platform/qt/cajaTextoQt.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/platform/qt/vistaTexto.hpp"

#include <QKeyEvent>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace norvik {

Completado::Completado(CajaTextoQt& caja, Propone propone, Escribe escribe)
    : caja_(caja), propone_(std::move(propone)), escribe_(std::move(escribe)), lista_(&caja.vista()) {
    lista_.setObjectName(QStringLiteral("completado"));
    lista_.setAccessibleName(QStringLiteral("Lo que puede seguir"));
    lista_.setWindowFlags(Qt::ToolTip);
    lista_.setAttribute(Qt::WA_ShowWithoutActivating);
    lista_.setFocusPolicy(Qt::NoFocus);
    lista_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it would stand on a row
    lista_.hide();
    caja_.vista().installEventFilter(this);
}

void Completado::permite(bool permitido) {
    permitido_ = permitido;
    if (!permitido) lista_.hide();
}

bool Completado::eventFilter(QObject* vista, QEvent* evento) {
    if (evento->type() == QEvent::FocusOut || evento->type() == QEvent::Wheel) lista_.hide();
    if (evento->type() != QEvent::KeyPress || !permitido_) return QObject::eventFilter(vista, evento);
    return pulsa(static_cast<const QKeyEvent&>(*evento));
}

/// True when the key is the list's.
bool Completado::pulsa(const QKeyEvent& tecla) {
    constexpr int pagina = 8;
    if (tecla.key() == Qt::Key_Space && tecla.modifiers() == Qt::ControlModifier) {
        if (!caja_.soloLectura()) caja_.protege([this] { muestra(); });
        return true;
    }
    if (!lista_.isVisible() || tecla.modifiers() != Qt::NoModifier) return false;
    switch (tecla.key()) {
    case Qt::Key_Up:
        return mueve(-1), true;
    case Qt::Key_Down:
        return mueve(1), true;
    case Qt::Key_PageUp:
        return mueve(-pagina), true;
    case Qt::Key_PageDown:
        return mueve(pagina), true;
    case Qt::Key_Escape:
        return lista_.hide(), true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        return toma(), true;
    default:
        return false;
    }
}

void Completado::muestra() {
    const std::int32_t cursor = caja_.inicioSeleccion();
    const Propone propone = propone_; // who is asked may name another, or delete the control
    const QPointer<Completado> vivo(this);
    const Continuaciones siguen = propone(caja_.texto(), static_cast<std::size_t>(cursor));
    if (vivo.isNull()) return;
    inicio_ = static_cast<std::int32_t>(siguen.inicio);
    llena(siguen);
    if (lista_.count() == 0) return lista_.hide();
    constexpr int lados = 40;
    lista_.resize(std::min(lista_.sizeHintForColumn(0) + lados,
                           caja_.vista().screen()->availableGeometry().width() / 2),
                  lista_.height());
    lista_.show();
    sigue();
}

void Completado::llena(const Continuaciones& continuaciones) {
    lista_.clear();
    for (const Continuacion& c : continuaciones.propuestas) {
        auto& fila = nuevo<QListWidgetItem>(aQString(c.texto), &lista_);
        if (c.clase != Continuacion::Clase::Nombre) continue;
        fila.setFlags(Qt::NoItemFlags);
        QFont letra = fila.font();
        letra.setItalic(true);
        fila.setFont(letra);
    }
}

/// Below what is completed, or above it where the screen ends; as high as the rows that are left.
void Completado::coloca(const QString& escrito, int filas) {
    constexpr int mayor = 8;
    const VistaTexto& vista = caja_.vista();
    const QRect pantalla = vista.screen()->availableGeometry();
    const QRect cursor = vista.cursorRect().translated(vista.viewport()->mapToGlobal(QPoint()));
    const int alto = lista_.sizeHintForRow(0) * std::min(filas, mayor) + 2 * lista_.frameWidth();
    const int ancho = lista_.width(); // of all rows, which are many to measure at each key
    const bool debajo = cursor.bottom() + alto <= pantalla.bottom();
    const int inicio = cursor.left() - vista.fontMetrics().horizontalAdvance(escrito);
    const int x = std::clamp(inicio, pantalla.left(), pantalla.right() - ancho);
    lista_.setGeometry(x, std::max(debajo ? cursor.bottom() : cursor.top() - alto, pantalla.top()), ancho,
                       alto);
}

/// Only what begins as what was typed stays; where nothing does, or the caret went elsewhere, the list goes.
void Completado::sigue() {
    if (!lista_.isVisible()) return;
    const std::int32_t cursor = caja_.inicioSeleccion();
    if (cursor < inicio_ || caja_.longitudSeleccion() > 0 ||
        caja_.lineaDeCaracter(cursor) != caja_.lineaDeCaracter(inicio_))
        return lista_.hide();
    const auto desde = static_cast<std::size_t>(inicio_);
    const QString escrito = aQString(caja_.texto().substr(desde, static_cast<std::size_t>(cursor) - desde));
    int quedan = 0;
    for (int i = 0; i < lista_.count(); ++i) {
        QListWidgetItem& fila = *lista_.item(i);
        const bool sirve = fila.flags() != Qt::NoItemFlags
                               ? fila.text().startsWith(escrito, Qt::CaseInsensitive)
                               : escrito.isEmpty();
        fila.setHidden(!sirve);
        if (sirve) ++quedan;
    }
    if (quedan == 0) return lista_.hide();
    coloca(escrito, quedan);
    const QListWidgetItem* const elegida = lista_.currentItem();
    if (elegida == nullptr || elegida->isHidden()) {
        lista_.setCurrentRow(-1);
        mueve(1);
    }
}

/// To the nearest one that can be taken, so many further.
void Completado::mueve(int pasos) {
    const int sentido = pasos < 0 ? -1 : 1;
    int fila = lista_.currentRow();
    for (int i = fila + sentido; i >= 0 && i < lista_.count() && pasos != 0; i += sentido) {
        const QListWidgetItem& candidata = *lista_.item(i);
        if (candidata.isHidden() || candidata.flags() == Qt::NoItemFlags) continue;
        fila = i;
        pasos -= sentido;
    }
    lista_.setCurrentRow(fila);
}

/// Whoever hears of the change may delete the control.
void Completado::toma() {
    const QListWidgetItem* const elegida = lista_.currentItem();
    const QString texto = elegida == nullptr ? QString() : elegida->text();
    lista_.hide();
    const std::int32_t escritos = caja_.inicioSeleccion() - inicio_;
    if (texto.isEmpty() || escritos < 0 || caja_.soloLectura()) return;
    const Escribe escribe = escribe_;
    caja_.atiende([&] { escribe(inicio_, escritos, vistaDe(texto)); });
}

} // namespace norvik
