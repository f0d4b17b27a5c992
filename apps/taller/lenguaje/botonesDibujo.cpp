// SPDX-License-Identifier: MIT

#include "botonesDibujo.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"
#include "norvik/platform/qt/nuevo.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QToolButton>

#include <memory>
#include <utility>

namespace norvik::taller {

BotonesDibujo::BotonesDibujo(Panel& panel, Dialogos& dialogos, Dibujo dibujo)
    : panel_(panel), dialogos_(dialogos), dibujo_(std::move(dibujo)),
      filas_(dibujo_.estrecho ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight) {
    filas_.setContentsMargins(0, 0, 0, 0);
    setLayout(&filas_);
    filas_.addLayout(&medidas_);
    filas_.addLayout(&salidas_);
    if (VistaDibujo* const vista = dibujo_.vista; vista != nullptr) {
        pon(medidas_, ampliar_, QStringLiteral("Ampliar"), QKeySequence::ZoomIn,
            [vista] { vista->amplia(); });
        pon(medidas_, reducir_, QStringLiteral("Reducir"), QKeySequence::ZoomOut,
            [vista] { vista->reduce(); });
        pon(medidas_, encajar_, QStringLiteral("Encajar"), Qt::CTRL | Qt::Key_0,
            [vista] { vista->encaja(); });
    }
    pon(salidas_, copiar_, QStringLiteral("Copiar dibujo"), {}, [this] { copia(); });
    pon(salidas_, guardar_, QStringLiteral("Guardar dibujo…"), {}, [this] { guarda(); });
    if (dibujo_.estrecho) {
        medidas_.addStretch(1);
        salidas_.addStretch(1);
    }
    activa(false);
}

void BotonesDibujo::pon(QBoxLayout& fila, QAction& accion, const QString& texto, const QKeySequence& tecla,
                        const std::function<void()>& orden) {
    accion.setText(texto);
    accion.setShortcut(tecla);
    accion.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    if (!tecla.isEmpty())
        accion.setToolTip(QStringLiteral("%1 (%2)").arg(texto, tecla.toString(QKeySequence::NativeText)));
    connect(&accion, &QAction::triggered, this, [this, orden] { haz(orden); });
    panel_.addAction(&accion);
    auto& boton = nuevo<QToolButton>(this);
    boton.setDefaultAction(&accion);
    boton.setFocusPolicy(Qt::StrongFocus);
    fila.addWidget(&boton);
}

void BotonesDibujo::haz(const std::function<void()>& orden) {
    if (const auto motivo = falloDe(orden); !motivo.empty()) emit panel_.fallo(aQString(motivo));
}

void BotonesDibujo::activa(bool hay) {
    for (QAction* const accion : {&ampliar_, &reducir_, &encajar_, &copiar_, &guardar_})
        accion->setEnabled(hay);
}

/// The text goes without a picture, too.
void BotonesDibujo::copia() {
    auto datos = std::make_unique<QMimeData>();
    haz([&] { datos->setImageData(enImagen(dibujo_.lamina())); });
    if (dibujo_.texto) datos->setText(dibujo_.texto());
    if (datos->formats().isEmpty()) return;
    QGuiApplication::clipboard()->setMimeData(datos.release());
}

void BotonesDibujo::guarda() {
    const Lamina lamina = dibujo_.lamina();
    const auto fichero =
        dialogos_.eligeParaGuardar(QStringLiteral("Guardar el dibujo: ") + lamina.titulo, filtroLaminas,
                                   dibujo_.fichero + QStringLiteral(".svg"), QStringLiteral("svg"));
    if (fichero) guardaLamina(lamina, *fichero);
}

} // namespace norvik::taller
