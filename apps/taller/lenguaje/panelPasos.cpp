// SPDX-License-Identifier: MIT

#include "panelPasos.hpp"

#include "correspondencias.hpp"
#include "palabrasPaso.hpp"

#include "norvik/platform/qt/nombra.hpp"
#include "norvik/platform/qt/nuevo.hpp"
#include "norvik/spec/filma.hpp"

#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace norvik::taller {

namespace {

constexpr std::chrono::milliseconds porPaso{400};
constexpr std::size_t maximoResto = 120;

} // namespace

PanelPasos::PanelPasos(QWidget* padre) : Panel(QStringLiteral("panelPasos"), QStringLiteral("Pasos"), padre) {
    compone();
    reloj_.setInterval(porPaso);
    connect(&reloj_, &QTimer::timeout, this, [this] {
        protege([&] {
            adelante();
            if (pelicula() == nullptr || momento_ == pelicula()->ultimo()) para();
        });
    });
    connect(&corredera_, &QSlider::valueChanged, this,
            [this](int valor) { protege([&] { va(static_cast<std::size_t>(valor)); }); });
    connect(&paso_, &QSpinBox::valueChanged, this,
            [this](int valor) { protege([&] { va(static_cast<std::size_t>(valor)); }); });
    connect(&pila_, &VistaPila::elegida, this,
            [this](Pelicula::Nodo nodo) { protege([&] { eligeDeLaPila(nodo); }); });
    sinPelicula(QStringLiteral("Todavía no hay ningún análisis."));
}

void PanelPasos::compone() {
    conecta(primero_, QStringLiteral("Primero"), Qt::ALT | Qt::Key_Home,
            QStringLiteral("Va al comienzo del análisis"), &PanelPasos::vaAlPrimero);
    conecta(atras_, QStringLiteral("Atrás"), Qt::ALT | Qt::Key_Left, QStringLiteral("Deshace el último paso"),
            &PanelPasos::atras);
    conecta(adelante_, QStringLiteral("Adelante"), Qt::ALT | Qt::Key_Right, QStringLiteral("Da un paso"),
            &PanelPasos::adelante);
    conecta(correr_, QStringLiteral("Correr"), Qt::ALT | Qt::Key_Down,
            QStringLiteral("Da un paso tras otro, o se detiene"), &PanelPasos::corre);
    correr_.setCheckable(true);
    conecta(ultimo_, QStringLiteral("Último"), Qt::ALT | Qt::Key_End,
            QStringLiteral("Va al final del análisis"), &PanelPasos::vaAlUltimo);
    botones_.addSpacing(fontMetrics().averageCharWidth());
    conecta(alCursor_, QStringLiteral("Al cursor"), Qt::ALT | Qt::Key_Up,
            QStringLiteral("Va adonde se lee el token que está en el cursor del texto"),
            &PanelPasos::vaAlCursor);
    conecta(alError_, QStringLiteral("Al error"), Qt::ALT | Qt::Key_Return,
            QStringLiteral("Va adonde se encuentra el primer error"), &PanelPasos::vaAlUltimo);
    botones_.addStretch();

    nombra(paso_, "paso", QStringLiteral("Paso"));
    paso_.setPrefix(QStringLiteral("Paso "));
    paso_.setKeyboardTracking(false);
    nombra(corredera_, "corredera", QStringLiteral("Paso del análisis"));
    lugar_.addWidget(&paso_);
    lugar_.addWidget(&corredera_, 1);

    nombra(accion_, "accion", QStringLiteral("Acción"));
    nombra(conflicto_, "conflicto", QStringLiteral("Conflicto"));
    nombra(resto_, "resto", QStringLiteral("Lo que falta por leer"));
    resto_.setTextFormat(Qt::PlainText);
    for (QLabel* const rotulo : std::initializer_list<QLabel*>{&accion_, &conflicto_, &resto_})
        rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    resto_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    columna_.addLayout(&botones_);
    columna_.addLayout(&lugar_);
    columna_.addWidget(&accion_);
    columna_.addWidget(&conflicto_);
    columna_.addWidget(&resto_);
    columna_.addStretch();
    centro_.setLayout(&columna_);
    partes_.addWidget(&centro_);
    partes_.addWidget(&pila_);
    partes_.setChildrenCollapsible(false);
    partes_.setFocusProxy(&pila_);
    ponDentro(partes_);
}

void PanelPasos::conecta(QAction& accion, const QString& texto, const QKeySequence& tecla,
                         const QString& explicacion, void (PanelPasos::*orden)()) {
    accion.setText(texto);
    accion.setShortcut(tecla);
    accion.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    accion.setToolTip(QStringLiteral("%1 (%2)").arg(explicacion, tecla.toString(QKeySequence::NativeText)));
    connect(&accion, &QAction::triggered, this, [this, orden] { protege([&] { (this->*orden)(); }); });
    addAction(&accion);
    auto& boton = nuevo<QToolButton>(&centro_);
    boton.setDefaultAction(&accion);
    boton.setFocusPolicy(Qt::StrongFocus);
    boton.setAccessibleDescription(explicacion);
    botones_.addWidget(&boton);
}

const Pelicula* PanelPasos::pelicula() const {
    return filmada_ ? std::get_if<Pelicula>(filmada_.get()) : nullptr;
}

void PanelPasos::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    ultimoEstudio_ = estudio;
    pendiente_ = std::move(estudio);
    filmaSiSeVe();
}

void PanelPasos::alVerse() {
    if (!seVe()) para();
    filmaSiSeVe();
}

void PanelPasos::selecciona(const Eleccion& eleccion) {
    if (!ultimoEstudio_) return;
    if (const auto lugar = lugarEnTexto(*ultimoEstudio_, eleccion))
        cursor_ = static_cast<std::size_t>(std::max(lugar->inicio.desplazamiento, 0));
}

void PanelPasos::filmaSiSeVe() {
    if (!seVe() || !pendiente_) return;
    const auto estudio = std::exchange(pendiente_, nullptr);
    trabajo_.para();
    if (estudio->gramatica() == nullptr) {
        sinPelicula(QStringLiteral("No hay nada que enseñar: el lenguaje no tiene gramática."));
        return;
    }
    ponTrabajando(pelicula() != nullptr);
    trabajo_.empieza(
        [estudio](const std::stop_token& parada) {
            return std::make_shared<const Filmada>(
                filma(*estudio->deLenguaje->lenguaje, estudio->texto, parada));
        },
        [this, estudio](const std::optional<Resultado>& resultado) {
            protege([&] { toma(estudio, resultado); });
        });
}

void PanelPasos::toma(std::shared_ptr<const Estudio> estudio, const std::optional<Resultado>& resultado) {
    if (!resultado) return sinPelicula(QStringLiteral("No hay memoria para los pasos de este análisis."));
    if (const auto* const motivo = std::get_if<Diagnostico>(resultado->get()))
        return sinPelicula(aQString(mensaje(*motivo)));
    ponTrabajando(false);
    para();
    pila_.vacia();
    estudio_ = std::move(estudio);
    filmada_ = *resultado;
    momento_ = std::min(momento_, pelicula()->ultimo());
    activa();
    muestra();
}

void PanelPasos::sinPelicula(const QString& motivo) {
    ponTrabajando(false);
    para();
    pila_.vacia();
    filmada_ = nullptr;
    estudio_ = nullptr;
    momento_ = 0;
    accion_.setText(motivo);
    conflicto_.setVisible(false);
    resto_.clear();
    activa();
}

// What can be done, and how far the film goes.
void PanelPasos::activa() {
    const Pelicula* const suya = pelicula();
    const std::array calladas{QSignalBlocker(corredera_), QSignalBlocker(paso_)};
    const int ultimo = suya != nullptr ? static_cast<int>(suya->ultimo()) : 0;
    corredera_.setRange(0, ultimo);
    corredera_.setPageStep(std::max(ultimo / 20, 1));
    paso_.setRange(0, ultimo);
    paso_.setSuffix(QStringLiteral(" de %1").arg(ultimo));
    for (QWidget* const elemento : std::initializer_list<QWidget*>{&corredera_, &paso_, &pila_})
        elemento->setEnabled(suya != nullptr);
    for (QAction* const accion : {&primero_, &atras_, &adelante_, &correr_, &ultimo_, &alCursor_})
        accion->setEnabled(suya != nullptr);
    alError_.setEnabled(suya != nullptr && !suya->acepta());
}

void PanelPasos::muestra() {
    const Pelicula& suya = *pelicula();
    {
        const std::array calladas{QSignalBlocker(corredera_), QSignalBlocker(paso_)};
        corredera_.setValue(static_cast<int>(momento_));
        paso_.setValue(static_cast<int>(momento_));
    }
    pila_.muestra(suya, momento_);
    muestraTexto(suya);
}

void PanelPasos::muestraTexto(const Pelicula& pelicula) {
    accion_.setText(palabrasDePaso(*estudio_, pelicula, momento_));
    const QString conflicto = palabrasDeConflicto(*estudio_, pelicula, momento_);
    conflicto_.setText(conflicto.isEmpty() ? conflicto : QStringLiteral("⚠ ") + conflicto);
    conflicto_.setVisible(!conflicto.isEmpty());
    const auto leido = static_cast<std::size_t>(pelicula.siguiente(momento_).rango.inicio.desplazamiento);
    const std::u16string_view resto =
        std::u16string_view(estudio_->texto).substr(std::min(leido, estudio_->texto.size()));
    resto_.setText(QStringLiteral("Por leer: ") +
                   (resto.empty() ? QStringLiteral("nada") : enUnaLinea(resto, maximoResto)));
}

// As the person asks: the others show it, too, if they have the same texts.
void PanelPasos::va(std::size_t momento) {
    if (pelicula() == nullptr) return;
    const Pelicula& suya = *pelicula();
    momento_ = std::min(momento, suya.ultimo());
    muestra();
    if (!alDia()) return;
    const Pelicula::Siguiente siguiente = suya.siguiente(momento_);
    const auto codigo = siguiente.codigo >= 0 ? std::optional(siguiente.codigo) : std::nullopt;
    emit elegido(DePaso{siguiente.rango, suya.estado(momento_), codigo});
}

void PanelPasos::eligeDeLaPila(Pelicula::Nodo nodo) {
    if (pelicula() == nullptr || !alDia()) return;
    const std::int16_t regla = pelicula()->regla(nodo);
    emit elegido(EnTexto{pelicula()->rango(nodo)});
    if (regla != 0) emit elegido(DeRegla{regla});
}

void PanelPasos::vaAlUltimo() {
    if (pelicula() != nullptr) va(pelicula()->ultimo());
}

void PanelPasos::vaAlCursor() {
    if (pelicula() != nullptr) va(pelicula()->momentoEn(cursor_));
}

void PanelPasos::corre() {
    if (reloj_.isActive()) return para();
    if (pelicula() == nullptr) return;
    if (momento_ == pelicula()->ultimo()) va(0);
    correr_.setChecked(true);
    correr_.setText(QStringLiteral("Parar"));
    reloj_.start();
}

void PanelPasos::para() {
    reloj_.stop();
    correr_.setChecked(false);
    correr_.setText(QStringLiteral("Correr"));
}

} // namespace norvik::taller
