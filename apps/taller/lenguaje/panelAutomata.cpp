// SPDX-License-Identifier: MIT

#include "panelAutomata.hpp"

#include "correspondencias.hpp"

#include "norvik/checks/conflictosDeTabla.hpp"
#include "norvik/platform/qt/nombra.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <numeric>
#include <utility>

namespace norvik::taller {

namespace {

constexpr qsizetype maximoLineas = 6; // of a box
constexpr qsizetype maximoLargo = 40;
constexpr std::chrono::milliseconds pausa{100}; // before another part is drawn

QStringList paraCaja(QStringList lineas) {
    if (lineas.size() > maximoLineas) {
        const auto otras = lineas.size() - maximoLineas + 1;
        lineas.resize(maximoLineas - 1);
        lineas.append(QStringLiteral("… y %1 más").arg(otras));
    }
    for (QString& linea : lineas)
        if (linea.size() > maximoLargo) linea = linea.left(maximoLargo) + u'…';
    return lineas;
}

/// The states in order.
bool entreEllos(const std::vector<std::int16_t>& estados, const Transicion& transicion) {
    return std::ranges::binary_search(estados, transicion.desde) &&
           std::ranges::binary_search(estados, transicion.hasta);
}

} // namespace

PanelAutomata::PanelAutomata(Dialogos& dialogos, QWidget* padre)
    : Panel(QStringLiteral("panelAutomata"), QStringLiteral("Autómata"), padre),
      botones_(*this, dialogos, {[this] { return lamina(); }, QStringLiteral("automata"), &vista_}) {
    compone();
    connect(&estados_, &QListWidget::currentRowChanged, this,
            [this](int fila) { protege([&] { elegidoPorLaPersona(fila); }); });
    connect(&estado_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& adonde) { protege([&] { pulsado(adonde.toString()); }); });
    connect(&vista_, &VistaAutomata::elegido, this,
            [this](int estado) { protege([&] { elegidoPorLaPersona(estado); }); });
    porDibujarse_.setSingleShot(true);
    porDibujarse_.setInterval(pausa);
    connect(&porDibujarse_, &QTimer::timeout, this, [this] { protege([this] { dibujaElElegido(); }); });
    connect(&colocador_, &ColocadorGrafos::colocado, this, [this](const GrafoColocado& sitio) {
        protege([&] {
            porColocar_.sitio = sitio;
            vista_.muestra(porColocar_, realce());
            botones_.activa(true);
        });
    });
    connect(&colocador_, &ColocadorGrafos::fallo, this, [this](const QString& motivo) {
        protege([&] {
            vista_.vacia();
            botones_.activa(false);
            avisa(motivo);
        });
    });
    sinAutomata(QStringLiteral("Todavía no hay ningún autómata."));
}

void PanelAutomata::compone() {
    nombra(aviso_, "aviso", QStringLiteral("Aviso"));
    nombra(entrada_, "entrada", QStringLiteral("Entrada más corta que lleva al estado elegido"));
    entrada_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    barra_.addWidget(&botones_);
    barra_.addWidget(&aviso_, 1);
    nombra(estados_, "estados", QStringLiteral("Estados"));
    estados_.setUniformItemSizes(true);
    nombra(estado_, "estado", QStringLiteral("Estado"));
    estado_.setOpenLinks(false);
    estado_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // one that comes and goes is a layout more
    for (QWidget* const parte : std::initializer_list<QWidget*>{&estados_, &estado_, &vista_})
        partes_.addWidget(parte);
    partes_.setStretchFactor(2, 1);
    partes_.setSizes({240, 280, 700});
    columna_.addLayout(&barra_);
    columna_.addWidget(&entrada_);
    columna_.addWidget(&partes_, 1);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&estados_);
    ponDentro(centro_);
}

void PanelAutomata::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    estudio_ = std::move(estudio);
    pendiente_ = estudio_->deLenguaje;
    porElegir_.reset();
    estudiaSiSeVe();
}

void PanelAutomata::selecciona(const Eleccion& eleccion) {
    if (std::holds_alternative<EnTexto>(eleccion)) return; // the node there comes, too
    if (!alDia() || !seVe()) return static_cast<void>(porElegir_ = eleccion);
    resalta(eleccion);
    const auto estado = estadoDe(eleccion);
    const bool sirve = conRegla_.empty() || conRegla_.contains(elegido_);
    elige(estado ? *estado : sirve ? elegido_ : *conRegla_.begin());
}

/// Its rule, in all the states that have it.
void PanelAutomata::resalta(const Eleccion& eleccion) {
    const auto* const item = std::get_if<DeItem>(&eleccion);
    const auto regla = reglaDe(*estudio_, eleccion);
    resaltada_ = {regla.value_or(0), {}};
    if (item != nullptr) resaltada_.punto = item->item.punto;
    conRegla_.clear();
    if (regla)
        for (const std::int16_t estado : estadosConRegla(gramatica(), *regla)) conRegla_.insert(estado);
    for (int fila = 0; fila < estados_.count(); ++fila) {
        QListWidgetItem& suya = *estados_.item(fila);
        const bool laTiene = conRegla_.contains(fila);
        if (suya.font().bold() == laTiene) continue;
        QFont letra;
        if (laTiene) letra.setBold(true);
        suya.setFont(letra);
    }
}

void PanelAutomata::alVerse() {
    estudiaSiSeVe();
    if (alDia() && seVe() && porElegir_) selecciona(*std::exchange(porElegir_, std::nullopt));
}

void PanelAutomata::alCambiarLetra() {
    if (grafo_) dibuja();
}

void PanelAutomata::estudiaSiSeVe() {
    if (!seVe() || !pendiente_) return;
    const auto lenguaje = std::exchange(pendiente_, nullptr);
    if (std::exchange(deseado_, lenguaje) == lenguaje) return;
    trabajo_.para();
    if (lenguaje->gramatica() == nullptr) {
        sinAutomata(QStringLiteral("No hay nada que enseñar: el lenguaje no tiene gramática."));
        return;
    }
    ponTrabajando(grafo_ != nullptr);
    trabajo_.empieza(
        [lenguaje](const std::stop_token& parada) {
            return std::make_shared<const GrafoEstados>(*lenguaje->gramatica(), parada);
        },
        [this, lenguaje](const std::optional<Resultado>& resultado) {
            protege([&] { toma(lenguaje, resultado); });
        });
}

void PanelAutomata::toma(std::shared_ptr<const LenguajeEstudiado> lenguaje,
                         const std::optional<Resultado>& resultado) {
    if (!resultado) return sinAutomata(QStringLiteral("No se ha podido estudiar el autómata."));
    lenguaje_ = std::move(lenguaje);
    grafo_ = *resultado;
    if (grafo_->estados() == 0)
        return sinAutomata(QStringLiteral("No hay nada que enseñar: el lenguaje no tiene autómata."));
    botones_.activa(false);
    vista_.vacia(); // it is of another version
    elegido_ = std::min(elegido_, static_cast<int>(grafo_->estados()) - 1);
    ponTrabajando(false);
    resaltada_ = {};
    conRegla_.clear();
    llenaEstados();
    muestraEstado();
    dibuja();
    if (porElegir_) selecciona(*std::exchange(porElegir_, std::nullopt));
}

void PanelAutomata::sinAutomata(const QString& motivo) {
    ponTrabajando(false);
    colocador_.para();
    grafo_ = nullptr;
    lenguaje_ = nullptr;
    {
        const QSignalBlocker callada(estados_);
        estados_.clear();
    }
    estado_.clear();
    vista_.vacia();
    entrada_.clear();
    botones_.activa(false);
    avisa(motivo);
}

void PanelAutomata::avisa(const QString& texto) {
    aviso_.setText(texto);
}

void PanelAutomata::llenaEstados() {
    const QSignalBlocker callada(estados_);
    estados_.clear();
    QStringList lineas;
    for (int estado = 0; estado < static_cast<int>(grafo_->estados()); ++estado) {
        const auto numero = static_cast<std::int16_t>(estado);
        QString linea = tituloDeEstado(*lenguaje_, numero);
        const QStringList nucleo = nucleoDe(gramatica(), numero);
        if (!nucleo.isEmpty()) linea += QStringLiteral(": ") + nucleo.join(QStringLiteral("; "));
        lineas.append(linea);
    }
    estados_.addItems(lineas);
}

void PanelAutomata::elegidoPorLaPersona(int estado) {
    if (!grafo_ || estado < 0 || estado >= static_cast<int>(grafo_->estados())) return;
    elige(estado);
    if (alDia()) emit elegido(DeEstado{static_cast<std::int16_t>(estado)});
}

void PanelAutomata::pulsado(const QString& enlace) {
    const auto suya = eleccionDeEnlace(enlace);
    if (!suya || !grafo_) return;
    if (std::holds_alternative<DeEstado>(*suya)) return elegidoPorLaPersona(*estadoDe(*suya));
    if (!alDia()) return;
    selecciona(*suya);
    emit elegido(*suya);
}

// The drawing follows: of many states it may be another part.
void PanelAutomata::elige(int estado) {
    elegido_ = estado;
    if (!grafo_ || estado >= static_cast<int>(grafo_->estados())) return;
    if (enHtml_ != std::pair(estado, resaltada_)) muestraEstado();
    if (vista_.dibuja(estado)) return vista_.elige(realce());
    porDibujarse_.start();
}

/// To begin another program takes longer than a step of the film should.
void PanelAutomata::dibujaElElegido() {
    if (grafo_ && porColocar_.estado(elegido_) == nullptr) dibuja();
}

void PanelAutomata::muestraEstado() {
    const QSignalBlocker callada(estados_);
    estados_.setCurrentRow(elegido_);
    const int alto = estado_.verticalScrollBar()->value();
    const bool esElMismo = std::exchange(enHtml_, std::pair(elegido_, resaltada_)).first == elegido_;
    estado_.setHtml(estadoEnHtml(*lenguaje_, *grafo_, static_cast<std::int16_t>(elegido_), resaltada_));
    if (esElMismo) estado_.verticalScrollBar()->setValue(alto);
    entrada_.setText(entradaDeEstado(*grafo_, static_cast<std::int16_t>(elegido_)));
}

/// All of them, or those around the chosen one, fewer as they have more arrows.
std::vector<std::int16_t> PanelAutomata::porDibujar(const GrafoEstados& grafo) const {
    std::vector<std::int16_t> todos(grafo.estados());
    std::iota(todos.begin(), todos.end(), std::int16_t{0});
    if (todos.size() <= maximoEntero && grafo.transiciones().size() <= maximoFlechas) return todos;
    for (std::size_t maximo = maximoVecinos;; maximo /= 2) {
        auto suyos = grafo.vecindad(static_cast<std::int16_t>(elegido_), maximo);
        const auto flechas = std::ranges::count_if(grafo.transiciones(),
                                                   [&](const Transicion& t) { return entreEllos(suyos, t); });
        if (maximo == 1 || static_cast<std::size_t>(flechas) <= maximoFlechas) return suyos;
    }
}

void PanelAutomata::dibuja() {
    const GrafoEstados& grafo = *grafo_;
    const std::vector<std::int16_t> suyos = porDibujar(grafo);
    avisa({});
    if (suyos.size() < grafo.estados())
        avisa(QStringLiteral("Se dibujan los %1 estados más cercanos al elegido, de %2.")
                  .arg(suyos.size())
                  .arg(grafo.estados()));
    QList<EstadoDibujado> cajas;
    for (const std::int16_t estado : suyos)
        cajas.append({estado, tituloDeEstado(*lenguaje_, estado), paraCaja(nucleoDe(gramatica(), estado)),
                      !conflictosEn(lenguaje_->conflictos, static_cast<std::int16_t>(estado + 1)).empty()});
    QList<Grafo::Flecha> flechas;
    for (const Transicion& t : grafo.transiciones())
        if (entreEllos(suyos, t))
            flechas.append({t.desde, t.hasta, aQString(gramatica().partidas.texto(t.simbolo))});
    porColocar_ = preparaDibujo(std::move(cajas), std::move(flechas), font());
    colocador_.coloca(porColocar_.grafo);
}

RealceAutomata PanelAutomata::realce() const {
    RealceAutomata realce{elegido_, {}, conRegla_};
    for (const Transicion& t : grafo_->camino(static_cast<std::int16_t>(elegido_)))
        realce.camino.append({t.desde, t.hasta});
    return realce;
}

Lamina PanelAutomata::lamina() const {
    return {titulo(), [dibujo = vista_.dibujo()](const QPalette& colores, QGraphicsScene& escena) {
                pinta(dibujo, colores, {}, escena);
            }};
}

} // namespace norvik::taller
