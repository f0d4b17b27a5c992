// SPDX-License-Identifier: MIT

#include "panelConflicto.hpp"

#include "correspondencias.hpp"
#include "curas.hpp"
#include "dibujoArbol.hpp"
#include "palabrasConflicto.hpp"
#include "palabrasEstado.hpp"
#include "palabrasLR.hpp"

#include "norvik/checks/palabrasHistoria.hpp"
#include "norvik/platform/qt/nombra.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QFontMetricsF>
#include <QGraphicsItem>
#include <QPushButton>
#include <QSignalBlocker>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace norvik::taller {

namespace {

/// Both trees beside each other, each below its words.
void pintaJuntos(const HistoriaConflicto& historia, const QFont& letra, const QPalette& colores,
                 QGraphicsScene& escena) {
    const double linea = QFontMetricsF(letra).height();
    double izquierda = 0;
    for (std::size_t i = 0; i < historia.cortos.size(); ++i) {
        const QRectF sitio = pinta(arbolDe(historia.cortos[i].arbol),
                                   {letra, colores, -1, QPointF(izquierda, 2 * linea), {}}, escena);
        QGraphicsSimpleTextItem& rotulo =
            *escena.addSimpleText(aQString(palabras::rotulo(historia, i)), letra);
        rotulo.setBrush(colores.color(QPalette::Text));
        rotulo.setPos(izquierda, 0);
        izquierda += std::max(sitio.width(), rotulo.boundingRect().width()) + 4 * linea;
    }
}

} // namespace

PanelConflicto::PanelConflicto(Historias& historias, Dialogos& dialogos, QWidget* padre)
    : Panel(QStringLiteral("conflicto"), QStringLiteral("Conflicto"), padre), historias_(historias),
      botones_(*this, dialogos, {[this] { return lamina(); }, QStringLiteral("conflicto"), nullptr}) {
    compone();
    connect(&historias_, &Historias::contadas, this, [this] { protege([this] { llena(); }); });
    connect(&lista_, &QComboBox::currentIndexChanged, this, [this] {
        protege([this] {
            for (LadoDibujado& lado : lados_) lado.vista.empiezaDeNuevo();
            muestra();
            eligeCelda();
        });
    });
    connect(&texto_, &QTextBrowser::anchorClicked, this, [this](const QUrl& adonde) {
        protege([&] {
            if (const auto suya = eleccionDeEnlace(adonde.toString())) emit elegido(*suya);
        });
    });
}

void PanelConflicto::compone() {
    nombra(lista_, "conflictos", QStringLiteral("Conflictos de la tabla"));
    lista_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    nombra(texto_, "historia", QStringLiteral("Historia del conflicto elegido"));
    texto_.setOpenLinks(false);
    texto_.setTabChangesFocus(true);
    fila_.addWidget(&lista_, 1);
    fila_.addWidget(&botones_);
    partes_.addWidget(&texto_);
    for (LadoDibujado& lado : lados_) {
        lado.rotulo.setTextFormat(Qt::PlainText);
        lado.rotulo.setWordWrap(true);
        lado.columna.setContentsMargins(0, 0, 0, 0);
        lado.columna.addWidget(&lado.rotulo);
        lado.columna.addWidget(&lado.vista, 1);
        lado.caja.setLayout(&lado.columna);
        partes_.addWidget(&lado.caja);
    }
    partes_.setSizes({480, 300, 300});
    filaDeCuras_.setContentsMargins(0, 0, 0, 0);
    curas_.setLayout(&filaDeCuras_);
    columna_.addLayout(&fila_);
    columna_.addWidget(&partes_, 1);
    columna_.addWidget(&curas_);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&lista_);
    ponDentro(centro_);
}

void PanelConflicto::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    if (std::exchange(lenguaje_, estudio->deLenguaje) == estudio->deLenguaje) return;
    pedida_.reset(); // a cell of another table
    llena();
}

// ---- the list

/// What is chosen stays, if there is still as much to choose from.
void PanelConflicto::llena() {
    const QSignalBlocker callada(lista_);
    const int fila = lista_.currentIndex();
    lista_.clear();
    cuales_.clear();
    for (std::size_t i = 0; i < lenguaje_->diagnosticos.size(); ++i)
        if (esConflicto(lenguaje_->diagnosticos[i]) && cuales_.size() < maximoDeFilas) anade(i);
    lista_.setEnabled(!cuales_.empty());
    lista_.setCurrentIndex(std::clamp(fila, std::min(0, lista_.count() - 1), lista_.count() - 1));
    if (historias_.conocidas() && pedida_) vaA(*std::exchange(pedida_, std::nullopt));
    muestra();
}

/// A diagnostic has a row while its stories are not known, and then one each.
void PanelConflicto::anade(std::size_t diagnostico) {
    const QString palabras = aQString(mensaje(lenguaje_->diagnosticos[diagnostico])).simplified();
    const auto* const suyas = historias_.conocidas() ? historias_.de(diagnostico) : nullptr;
    const std::size_t cuantas = suyas == nullptr ? 1 : std::max<std::size_t>(suyas->size(), 1);
    for (std::size_t i = 0; i < cuantas; ++i) {
        cuales_.push_back({diagnostico, i});
        lista_.addItem(cuantas == 1 ? palabras
                                    : QStringLiteral("%1 — %2 de %3, %4")
                                          .arg(palabras)
                                          .arg(i + 1)
                                          .arg(cuantas)
                                          .arg(aQString((*suyas)[i].acciones[1].textoRegla)));
    }
}

int PanelConflicto::filaDe(const Cual& cual) {
    if (std::ranges::find(cuales_, cual) == cuales_.end()) anade(cual.diagnostico);
    const auto suya = std::ranges::find(cuales_, cual);
    return suya == cuales_.end() ? lista_.currentIndex() : static_cast<int>(suya - cuales_.begin());
}

void PanelConflicto::cuenta(std::size_t diagnostico) {
    if (diagnostico >= lenguaje_->diagnosticos.size()) return;
    lista_.setCurrentIndex(filaDe({diagnostico, 0}));
    muestra();
}

void PanelConflicto::cuenta(const DeCelda& celda) {
    if (historias_.conocidas()) return vaA(celda);
    if (cuales_.empty()) return;
    pedida_ = celda;
    historias_.de(cuales_.front().diagnostico); // begins the search
}

void PanelConflicto::selecciona(const Eleccion& eleccion) {
    const auto celda = celdaDe(eleccion);
    if (!celda || !lenguaje_ || !historias_.conocidas()) return;
    const int antes = lista_.currentIndex();
    {
        const QSignalBlocker callada(lista_);
        vaA(*celda);
    }
    if (lista_.currentIndex() == antes) return;
    for (LadoDibujado& lado : lados_) lado.vista.empiezaDeNuevo();
    muestra();
}

void PanelConflicto::vaA(const DeCelda& celda) {
    for (std::size_t d = 0; d < lenguaje_->diagnosticos.size(); ++d) {
        if (!esConflicto(lenguaje_->diagnosticos[d])) continue;
        const auto* const suyas = historias_.de(d);
        for (std::size_t i = 0; suyas != nullptr && i < suyas->size(); ++i)
            if (esDe({d, i}, (*suyas)[i], celda)) return lista_.setCurrentIndex(filaDe({d, i}));
    }
}

/// One that the classic table keeps quiet about may be of several cells.
bool PanelConflicto::esDe(const Cual& cual, const HistoriaConflicto& historia, const DeCelda& celda) const {
    const GramaticaLR* const g = lenguaje_->gramatica();
    const auto columna = static_cast<std::int16_t>(celda.codigo + 1);
    if (g == nullptr || historia.simbolo != g->tabla.simbolo(columna)) return false;
    if (historia.estado == celda.estado) return true;
    return lenguaje_->diagnosticos[cual.diagnostico].codigo == Codigo::ConflictoCallado &&
           std::ranges::any_of(lenguaje_->conflictos, [&](const Conflicto& c) {
               return c.fila == celda.estado + 1 && c.columna == columna &&
                      c.regla == historia.acciones[1].regla;
           });
}

// ---- what is shown

const HistoriaConflicto* PanelConflicto::elegida() {
    const int fila = lista_.currentIndex();
    if (fila < 0) return nullptr;
    const Cual cual = cuales_[static_cast<std::size_t>(fila)];
    const auto* const suyas = historias_.de(cual.diagnostico);
    return suyas == nullptr || cual.historia >= suyas->size() ? nullptr : &(*suyas)[cual.historia];
}

void PanelConflicto::muestra() {
    if (!seVe() || !lenguaje_) return;
    const HistoriaConflicto* const historia = elegida();
    botones_.activa(historia != nullptr);
    ponArboles(historia);
    if (historia != nullptr) return muestra(*historia);
    ponCuras({});
    texto_.setPlainText(sinHistoria());
}

QString PanelConflicto::sinHistoria() const {
    if (lenguaje_->gramatica() == nullptr) return aQString(sinTabla);
    if (cuales_.empty()) return QStringLiteral("La tabla no tiene conflictos.");
    return historias_.conocidas() ? QStringLiteral("De este conflicto no se sabe nada más.")
                                  : QStringLiteral("Se busca un ejemplo…");
}

void PanelConflicto::muestra(const HistoriaConflicto& historia) {
    texto_.setHtml(historiaEnHtml(*lenguaje_, historia));
    ponCuras(curasDe(*lenguaje_, historia));
}

void PanelConflicto::eligeCelda() {
    const HistoriaConflicto* const historia = historias_.conocidas() ? elegida() : nullptr;
    if (historia == nullptr || historia->estado == HistoriaConflicto::sinEstado) return;
    const std::int16_t columna = lenguaje_->gramatica()->tabla.codigo(historia->simbolo);
    if (columna >= 0) emit elegido(DeCelda{historia->estado, columna});
}

void PanelConflicto::ponArboles(const HistoriaConflicto* historia) {
    const bool hay = historia != nullptr && historia->clase != HistoriaConflicto::Clase::SinEjemplo;
    for (std::size_t i = 0; i < lados_.size(); ++i) {
        LadoDibujado& lado = lados_[i];
        lado.caja.setVisible(hay);
        if (!hay) continue;
        const ArbolEjemplo& arbol = historia->cortos[i].arbol;
        lado.rotulo.setText(aQString(palabras::rotulo(*historia, i)));
        lado.vista.setAccessibleName(lado.rotulo.text());
        lado.vista.setAccessibleDescription(aQString(palabras::arbol(arbol)));
        lado.vista.muestra(
            [dibujado = arbolDe(arbol), &lado](const QPalette& colores, QGraphicsScene& escena) {
                pinta(dibujado, {lado.vista.font(), colores, -1, {}, {}}, escena);
            });
    }
}

void PanelConflicto::ponCuras(const std::vector<Arreglo>& arreglos) {
    for (QPushButton* const boton : curas_.findChildren<QPushButton*>(Qt::FindDirectChildrenOnly)) {
        boton->setParent(nullptr);
        boton->deleteLater(); // it may be the one that was pressed
    }
    int numero = 0;
    for (const Arreglo& arreglo : arreglos) {
        const QKeySequence tecla(QStringLiteral("Alt+%1").arg(++numero));
        const QString texto = QStringLiteral("Arreglar: %1 (%2)")
                                  .arg(aQString(arreglo.titulo), tecla.toString(QKeySequence::NativeText));
        auto& boton = nuevo<QPushButton>(QString(texto).replace(u'&', QLatin1String("&&")), &curas_);
        boton.setShortcut(tecla);
        filaDeCuras_.addWidget(&boton);
        connect(&boton, &QPushButton::clicked, this, [this, arreglo] {
            protege([&, suyo = arreglo] { emit arreglado(Lado::Especificacion, suyo); });
        });
    }
}

Lamina PanelConflicto::lamina() {
    const HistoriaConflicto* const historia = elegida();
    if (historia == nullptr) return {titulo(), [](const QPalette&, QGraphicsScene&) {}};
    return {titulo(), [suya = *historia, letra = font()](const QPalette& colores, QGraphicsScene& escena) {
                pintaJuntos(suya, letra, colores, escena);
            }};
}

} // namespace norvik::taller
