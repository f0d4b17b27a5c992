// SPDX-License-Identifier: MIT

#include "panelDiagramas.hpp"

#include "correspondencias.hpp"
#include "dibujoReglas.hpp"
#include "palabrasLR.hpp"

#include <utility>

namespace norvik::taller {

PanelDiagramas::PanelDiagramas(Dialogos& dialogos, QWidget* padre)
    : Panel(QStringLiteral("diagramas"), QStringLiteral("Diagramas"), padre),
      vista_(QStringLiteral("Diagramas de las reglas"),
             QStringLiteral("La especificación y el panel Conjuntos dicen lo mismo")),
      botones_(*this, dialogos,
               {[this] {
                    return Lamina{titulo(), pinta(0)};
                },
                QStringLiteral("reglas"), &vista_}) {
    columna_.setContentsMargins(0, 0, 0, 0);
    columna_.addWidget(&botones_, 0, Qt::AlignLeft);
    sinReglas_.setText(aQString(sinTabla));
    sinReglas_.setTextFormat(Qt::PlainText);
    sinReglas_.setWordWrap(true);
    columna_.addWidget(&sinReglas_);
    columna_.addWidget(&vista_, 1);
    centro_.setLayout(&columna_);
    centro_.setFocusProxy(&vista_);
    ponDentro(centro_);
    connect(&vista_, &VistaDibujo::elegido, this, [this](int regla) {
        protege([&] {
            selecciona(DeRegla{static_cast<std::int16_t>(regla)});
            emit elegido(DeRegla{static_cast<std::int16_t>(regla)});
        });
    });
}

void PanelDiagramas::ponEstudio(std::shared_ptr<const Estudio> estudio) {
    estudio_ = std::move(estudio);
    if (dibujado_ != estudio_->deLenguaje) porElegir_.reset();
    dibujaSiSeVe();
}

void PanelDiagramas::alVerse() {
    dibujaSiSeVe();
    if (seVe() && porElegir_) selecciona(*std::exchange(porElegir_, std::nullopt));
}

void PanelDiagramas::dibujaSiSeVe() {
    if (!seVe() || !estudio_ || dibujado_ == estudio_->deLenguaje) return;
    dibujado_ = estudio_->deLenguaje;
    elegida_ = 0;
    botones_.activa(dibujado_->gramatica() != nullptr);
    sinReglas_.setVisible(dibujado_->gramatica() == nullptr);
    vista_.muestra(
        [this](const QPalette& colores, QGraphicsScene& escena) { pinta(elegida_)(colores, escena); });
}

Lamina::Pinta PanelDiagramas::pinta(std::int16_t elegida) const {
    return [lenguaje = dibujado_, letra = vista_.font(), elegida](const QPalette& colores,
                                                                  QGraphicsScene& escena) {
        if (lenguaje && lenguaje->gramatica() != nullptr)
            pintaReglas(*lenguaje->gramatica(), letra, colores, elegida, escena);
    };
}

void PanelDiagramas::selecciona(const Eleccion& eleccion) {
    if (!estudio_) return;
    if (!seVe()) return static_cast<void>(porElegir_ = eleccion);
    const auto regla = reglaDe(*estudio_, eleccion);
    if (!regla || std::exchange(elegida_, *regla) == *regla) return;
    realzaRegla(*regla, vista_.font(), *vista_.scene());
    vista_.acerca(*regla);
}

} // namespace norvik::taller
