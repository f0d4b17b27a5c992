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
    paciencia_.setSingleShot(true);
    paciencia_.setInterval(60ms);
    connect(&paciencia_, &QTimer::timeout, this, [this] { da(sinArreglos_); });
}

void Seguimiento::cambio() {
    ++version_;
    parada_.request_stop();
    paciencia_.stop();
    pausa_.start();
}

/// Work that was told to end begins this when it has.
void Seguimiento::empieza() {
    if (trabajo_.trabaja()) return;
    const std::u16string motivo = falloDe([this] { estudia(textos_(), ultimo_, ErroresBuscados::Primero); });
    if (!motivo.empty()) emit fallo(aQString(motivo));
}

void Seguimiento::estudia(const Textos& textos, const Resultado& anterior, ErroresBuscados errores) {
    parada_ = std::stop_source();
    trabajo_.empieza(
        [textos, anterior, errores, parada = parada_.get_token()](const auto&) {
            return taller::estudia(textos.especificacion, textos.texto, anterior, parada, errores);
        },
        [this, version = version_, textos](const std::optional<Resultado>& resultado) {
            const auto motivo = falloDe([&] { acaba(resultado, version, textos); });
            if (!motivo.empty()) emit fallo(aQString(motivo));
        });
}

void Seguimiento::acaba(const std::optional<Resultado>& resultado, std::uint64_t version,
                        const Textos& textos) {
    if (version != version_) {
        if (!pausa_.isActive()) empieza();
        return;
    }
    if (!resultado || !*resultado) {
        estudiada_ = version;
        emit fallo(QStringLiteral("El lenguaje no se ha podido estudiar: no hay memoria suficiente"));
        return;
    }
    if (!(*resultado)->faltanArreglos) return da(*resultado);
    sinArreglos_ = *resultado;
    paciencia_.start();
    estudia(textos, sinArreglos_, ErroresBuscados::Todos);
}

void Seguimiento::da(const Resultado& resultado) {
    paciencia_.stop();
    estudiada_ = version_;
    ultimo_ = resultado;
    sinArreglos_ = nullptr;
    emit estudiado(ultimo_);
}

} // namespace norvik::taller
