// SPDX-License-Identifier: MIT

#include "panelProblemas.hpp"

#include "curas.hpp"

#include "norvik/checks/historiaTexto.hpp"
#include "norvik/platform/qt/ayudaLlana.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QFontDatabase>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <memory>
#include <utility>

namespace norvik::taller {

namespace {

enum ColumnaDeProblemas { Problema, LugarDeProblemas, columnasDeProblemas };

constexpr std::array gravedades = {Gravedad::Error, Gravedad::Aviso, Gravedad::Nota};
constexpr std::size_t maximoDeFilas = 500; ///< of a side: nobody reads more

QStyle::StandardPixmap dibujoDe(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Error:
        return QStyle::SP_MessageBoxCritical;
    case Gravedad::Aviso:
        return QStyle::SP_MessageBoxWarning;
    case Gravedad::Nota:
        return QStyle::SP_MessageBoxInformation;
    }
    return QStyle::SP_MessageBoxInformation;
}

QString nombre(Gravedad gravedad) {
    QString palabra = aQString(nombreDe(gravedad));
    palabra[0] = palabra[0].toUpper();
    return palabra;
}

QString nombres(Gravedad gravedad) {
    return nombre(gravedad) + (gravedad == Gravedad::Error ? QStringLiteral("es") : QStringLiteral("s"));
}

QString lugar(const Rango& rango) {
    return QStringLiteral("%1:%2").arg(rango.inicio.linea).arg(rango.inicio.columna);
}

} // namespace

PanelProblemas::PanelProblemas(Historias& historias, QWidget* padre)
    : Panel(QStringLiteral("problemas"), QStringLiteral("Problemas"), padre), historias_(historias) {
    compone();
    for (QToolButton& filtro : filtros_)
        connect(&filtro, &QToolButton::toggled, this, [this] { protege([this] { llena(); }); });
    connect(&lista_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* elemento) { protege([&] { elige(elemento); }); });
    connect(&lista_, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* elemento) { protege([&] { ve(elemento); }); });
    connect(&lista_, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* elemento) { protege([&] { ve(elemento); }); });
    connect(&historias_, &Historias::contadas, this, [this] { protege([this] { anadeCuras(); }); });
}

void PanelProblemas::compone() {
    for (const Gravedad gravedad : gravedades) {
        QToolButton& boton = filtro(gravedad);
        boton.setCheckable(true);
        boton.setChecked(true);
        boton.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        boton.setIcon(style()->standardIcon(dibujoDe(gravedad)));
        boton.setText(nombres(gravedad));
        barra_.addWidget(&boton);
    }
    barra_.addStretch(1);
    lista_.setColumnCount(columnasDeProblemas);
    lista_.setHeaderLabels({QStringLiteral("Problema"), QStringLiteral("Lugar")});
    lista_.setAccessibleName(QStringLiteral("Problemas de la especificación y del texto"));
    lista_.setUniformRowHeights(true);
    lista_.header()->setStretchLastSection(false);
    lista_.header()->setSectionResizeMode(Problema, QHeaderView::Stretch);
    lista_.header()->setSectionResizeMode(LugarDeProblemas, QHeaderView::ResizeToContents);
    detalle_.setReadOnly(true);
    detalle_.setTabChangesFocus(true);
    ponLetraDeDetalle();
    detalle_.setAccessibleName(QStringLiteral("Todo sobre el problema elegido"));
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addLayout(&barra_);
    columna_.addWidget(&lista_, 1);
    lado_.setLayout(&columna_);
    centro_.addWidget(&lado_);
    centro_.addWidget(&detalle_);
    centro_.setStretchFactor(0, 3);
    centro_.setStretchFactor(1, 2);
    centro_.setFocusProxy(&lista_);
    ponDentro(centro_);
}

/// The stories of conflicts have drawn trees.
void PanelProblemas::ponLetraDeDetalle() {
    QFont letra = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (font().pointSizeF() > 0) letra.setPointSizeF(font().pointSizeF());
    detalle_.setFont(letra);
}

const std::vector<Diagnostico>& PanelProblemas::diagnosticos(Lado lado) const {
    return lado == Lado::Especificacion ? estudio_->deLenguaje->diagnosticos
                                        : estudio_->analisis.diagnosticos;
}

/// A list that says the same stays as it is, with what is chosen and open in it.
void PanelProblemas::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    const auto antes = std::exchange(estudio_, std::move(estudio));
    const bool dicenLoMismo = antes && antes->analisis.diagnosticos == estudio_->analisis.diagnosticos &&
                              antes->deLenguaje->diagnosticos == estudio_->deLenguaje->diagnosticos;
    if (!dicenLoMismo) return llena();
    if (antes->deLenguaje == estudio_->deLenguaje) return;
    quitaCuras(); // they change the text of before
    const Fila* const fila = filaDe(lista_.currentItem());
    if (fila != nullptr && seVe()) detalla(*fila); // and asks for those of now
}

void PanelProblemas::llena() {
    if (!estudio_) return;
    const QScopedValueRollback<bool> callado(callado_, true);
    lista_.clear();
    filas_.clear();
    llenaLado(Lado::Especificacion, QStringLiteral("Especificación"));
    llenaLado(Lado::Texto, QStringLiteral("Texto"));
    filasSinCuras_ = filas_.size();
    detalle_.setPlainText(filas_.empty()
                              ? QStringLiteral("Ni la especificación ni el texto tienen problemas.")
                              : QStringLiteral("Elija un problema: aquí se cuenta todo de él."));
    cuentaFiltros();
    if (historias_.conocidas()) anadeCuras();
}

void PanelProblemas::llenaLado(Lado lado, const QString& titulo) {
    auto& grupo = nuevo<QTreeWidgetItem>(&lista_);
    QFont letra = lista_.font();
    letra.setBold(true);
    grupo.setFont(Problema, letra);
    const auto& suyos = diagnosticos(lado);
    std::size_t vistos = 0;
    for (std::size_t i = 0; i < suyos.size() && vistos < maximoDeFilas; ++i) {
        if (!filtro(suyos[i].gravedad).isChecked()) continue;
        anade(grupo, lado, i);
        ++vistos;
    }
    grupo.setText(Problema, suyos.empty() ? titulo + QStringLiteral(": ningún problema")
                                          : QStringLiteral("%1: %2").arg(titulo).arg(suyos.size()));
    grupo.setExpanded(true);
    if (vistos == maximoDeFilas)
        nuevo<QTreeWidgetItem>(&grupo).setText(Problema, QStringLiteral("… y puede que más"));
}

QTreeWidgetItem& PanelProblemas::anadeFila(QTreeWidgetItem& padre, const Fila& fila, const QString& texto) {
    auto& elemento = nuevo<QTreeWidgetItem>(&padre);
    elemento.setText(Problema, texto);
    elemento.setToolTip(Problema, ayudaLlana(texto));
    elemento.setText(LugarDeProblemas, lugar(fila.lugar));
    elemento.setData(Problema, Qt::UserRole, QVariant::fromValue(static_cast<int>(filas_.size())));
    filas_.push_back(fila);
    return elemento;
}

void PanelProblemas::anade(QTreeWidgetItem& grupo, Lado lado, std::size_t numero) {
    const Diagnostico& d = diagnosticos(lado)[numero];
    const QString texto = nombre(d.gravedad) + QStringLiteral(": ") + aQString(mensaje(d)).simplified();
    QTreeWidgetItem& elemento = anadeFila(grupo, {lado, numero, d.rango}, texto);
    elemento.setIcon(Problema, style()->standardIcon(dibujoDe(d.gravedad)));
    if (lado == Lado::Especificacion && esConflicto(d))
        anadeFila(elemento, {lado, numero, d.rango, {}, true},
                  QStringLiteral("Ver el conflicto, con sus árboles"));
    for (const Arreglo& arreglo : arreglosDe(d))
        anadeFila(elemento, {lado, numero, d.rango, arreglo},
                  QStringLiteral("Arreglar: ") + aQString(arreglo.titulo));
    for (const Relacionado& otro : d.partes.relacionados)
        anadeFila(elemento, {lado, numero, otro.rango}, QStringLiteral("Véase: ") + aQString(otro.texto));
    elemento.setExpanded(true);
}

void PanelProblemas::anadeCuras() {
    quitaCuras();
    QTreeWidgetItem& grupo = *lista_.topLevelItem(0);
    for (int i = 0; i < grupo.childCount(); ++i) {
        QTreeWidgetItem& elemento = *grupo.child(i);
        const Fila* const fila = filaDe(&elemento);
        if (fila == nullptr) continue;
        const Fila suya = *fila; // more rows move those that there are
        for (const Arreglo& cura : historias_.curas(suya.diagnostico))
            anadeFila(elemento, {suya.lado, suya.diagnostico, suya.lugar, cura},
                      QStringLiteral("Arreglar: ") + aQString(cura.titulo));
    }
    if (const Fila* const fila = filaDe(lista_.currentItem())) detalla(*fila);
}

/// Who had chosen one is at its problem.
void PanelProblemas::quitaCuras() {
    const QScopedValueRollback<bool> callado(callado_, true);
    QTreeWidgetItem& grupo = *lista_.topLevelItem(0);
    for (int i = 0; i < grupo.childCount(); ++i) {
        QTreeWidgetItem& elemento = *grupo.child(i);
        const auto esCura = [&] {
            const QVariant numero = elemento.child(elemento.childCount() - 1)->data(Problema, Qt::UserRole);
            return numero.isValid() && std::cmp_greater_equal(numero.toInt(), filasSinCuras_);
        };
        while (elemento.childCount() > 0 && esCura()) {
            if (lista_.currentItem() == elemento.child(elemento.childCount() - 1))
                lista_.setCurrentItem(&elemento);
            const std::unique_ptr<QTreeWidgetItem> suya(elemento.takeChild(elemento.childCount() - 1));
        }
    }
    filas_.erase(filas_.begin() + static_cast<std::ptrdiff_t>(filasSinCuras_), filas_.end());
}

void PanelProblemas::cuentaFiltros() {
    for (const Gravedad gravedad : gravedades) {
        std::ptrdiff_t cuantos = 0;
        for (const Lado lado : {Lado::Especificacion, Lado::Texto})
            cuantos += std::ranges::count(diagnosticos(lado), gravedad, &Diagnostico::gravedad);
        filtro(gravedad).setText(QStringLiteral("%1 (%2)").arg(nombres(gravedad)).arg(cuantos));
    }
}

// ---- what is chosen

const PanelProblemas::Fila* PanelProblemas::filaDe(const QTreeWidgetItem* elemento) const {
    const QVariant numero = elemento == nullptr ? QVariant() : elemento->data(Problema, Qt::UserRole);
    return numero.isValid() ? &filas_[static_cast<std::size_t>(numero.toInt())] : nullptr;
}

Eleccion PanelProblemas::eleccionDe(const Fila& fila) {
    return fila.lado == Lado::Especificacion ? Eleccion(EnEspecificacion{fila.lugar})
                                             : Eleccion(EnTexto{fila.lugar});
}

void PanelProblemas::elige(const QTreeWidgetItem* elemento) {
    const Fila* const fila = filaDe(elemento);
    if (callado_ || fila == nullptr) return;
    detalla(*fila);
    emit elegido(eleccionDe(*fila));
}

void PanelProblemas::ve(const QTreeWidgetItem* elemento) {
    const Fila* const fila = filaDe(elemento);
    if (fila == nullptr) return;
    if (fila->esHistoria)
        emit conflictoPedido(fila->diagnostico);
    else if (fila->arreglo)
        emit arreglado(fila->lado, Arreglo(*fila->arreglo)); // who does it may fill the list again
    else
        emit ido(eleccionDe(*fila));
}

PanelProblemas::Peticion PanelProblemas::arregla(Lado lado, std::int32_t lugar) {
    const auto primero = [this](const auto& sirve) {
        return std::ranges::find_if(filas_, [&](const Fila& f) { return f.arreglo && sirve(f); });
    };
    auto fila = primero([&](const Fila& f) {
        return f.lado == lado && f.lugar.inicio.desplazamiento <= lugar &&
               lugar <= f.lugar.fin.desplazamiento;
    });
    if (fila == filas_.end()) fila = primero([](const Fila& /*fila*/) { return true; });
    if (fila == filas_.end()) return Peticion::NoHay;
    const auto suyas = std::ranges::count_if(filas_, [&](const Fila& f) {
        return f.arreglo && f.lado == fila->lado && f.diagnostico == fila->diagnostico;
    });
    if (suyas == 1) {
        emit arreglado(fila->lado, Arreglo(*fila->arreglo));
        return Peticion::Hecha;
    }
    for (QTreeWidgetItemIterator elemento(&lista_); *elemento != nullptr; ++elemento)
        if (filaDe(*elemento) == &*fila) lista_.setCurrentItem(*elemento);
    return Peticion::PorElegir;
}

void PanelProblemas::detalla(const Fila& fila) {
    const Diagnostico& d = diagnosticos(fila.lado)[fila.diagnostico];
    detalle_.setLineWrapMode(esConflicto(d) ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    QString texto = aQString(mensaje(d)) + QStringLiteral("\n\nCódigo: ") + aQString(nombreDe(d.codigo));
    if (fila.lado == Lado::Especificacion && esConflicto(d)) {
        const auto* const historias = historias_.de(fila.diagnostico);
        if (historias == nullptr) texto += QStringLiteral("\n\nSe busca un ejemplo…");
        for (std::size_t i = 0; historias != nullptr && i < historias->size(); ++i)
            texto += QStringLiteral("\n\n") + aQString(enTexto((*historias)[i]));
    }
    detalle_.setPlainText(texto);
}

} // namespace norvik::taller
