// SPDX-License-Identifier: MIT

#include "seguimiento.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <chrono>
#include <utility>

namespace norvik::taller {

Seguimiento::Seguimiento(std::function<Textos()> textos) : textos_(std::move(textos)) {
    using namespace std::chrono_literals;
    pausa_.setSingleShot(true);
    pausa_.setInterval(150ms);
    pausa_.setTimerType(Qt::PreciseTimer); // it is short already
    connect(&pausa_, &QTimer::timeout, this, &Seguimiento::empieza);
}

void Seguimiento::cambio() {
    ++version_;
    parada_.request_stop();
    pausa_.start();
}

/// Work that was told to end begins this when it has.
void Seguimiento::empieza() {
    if (trabajo_.trabaja()) return;
    const std::u16string motivo = falloDe([this] {
        parada_ = std::stop_source();
        trabajo_.empieza(
            [textos = textos_(), anterior = ultimo_, parada = parada_.get_token()](const auto&) {
                return estudia(textos.especificacion, textos.texto, anterior, parada);
            },
            [this, version = version_](const std::optional<Resultado>& resultado) {
                acaba(resultado, version);
            });
    });
    if (!motivo.empty()) emit fallo(aQString(motivo));
}

void Seguimiento::acaba(const std::optional<Resultado>& resultado, std::uint64_t version) {
    if (version != version_) {
        if (!pausa_.isActive()) empieza();
        return;
    }
    estudiada_ = version;
    if (!resultado || !*resultado) {
        emit fallo(QStringLiteral("El lenguaje no se ha podido estudiar: no hay memoria suficiente"));
        return;
    }
    ultimo_ = *resultado;
    emit estudiado(ultimo_);
}

} // namespace norvik::taller
