// SPDX-License-Identifier: MIT

#include "seguimiento.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <chrono>
#include <utility>

namespace norvik::taller {

Seguimiento::Seguimiento(std::function<Textos()> textos, Estudia estudia)
    : textos_(std::move(textos)), estudia_(std::move(estudia)) {
    using namespace std::chrono_literals;
    pausa_.setSingleShot(true);
    pausa_.setInterval(150ms);
    pausa_.setTimerType(Qt::PreciseTimer); // it is short already
    connect(&pausa_, &QTimer::timeout, this, &Seguimiento::empieza);
    paciencia_.setSingleShot(true);
    paciencia_.setInterval(20ms);
    connect(&paciencia_, &QTimer::timeout, this, [this] { da(sinArreglos_); });
}

void Seguimiento::cambio() {
    ++version_;
    parada_.request_stop();
    paciencia_.stop();
    sinArreglos_ = nullptr;
    pausa_.start();
}

/// Work that was told to end begins this when it has.
void Seguimiento::empieza() {
    if (trabajo_.trabaja()) return;
    const std::u16string motivo = falloDe([this] { lanza(textos_(), ultimo_, ErroresBuscados::Primero); });
    if (!motivo.empty()) falla(motivo);
}

void Seguimiento::lanza(const Textos& textos, const Resultado& anterior, ErroresBuscados errores) {
    parada_ = std::stop_source();
    trabajo_.empieza(
        [estudia = estudia_, textos, anterior, errores, parada = parada_.get_token()](const auto&) {
            Desenlace desenlace;
            desenlace.motivo =
                falloDe([&] { desenlace.resultado = estudia(textos, anterior, parada, errores); });
            return desenlace;
        },
        [this, version = version_, textos](const std::optional<Desenlace>& desenlace) {
            const auto motivo = falloDe([&] { acaba(desenlace.value_or(Desenlace()), version, textos); });
            if (!motivo.empty()) falla(motivo);
        });
}

void Seguimiento::acaba(const Desenlace& desenlace, std::uint64_t version, const Textos& textos) {
    if (version != version_) {
        if (!pausa_.isActive()) empieza();
        return;
    }
    const Resultado& resultado = desenlace.resultado;
    if (!resultado) return falla(desenlace.motivo);
    if (!resultado->faltanArreglos) return da(resultado);
    sinArreglos_ = resultado;
    paciencia_.start();
    lanza(textos, sinArreglos_, ErroresBuscados::Todos);
}

void Seguimiento::da(const Resultado& resultado) {
    paciencia_.stop();
    estudiada_ = version_;
    ultimo_ = resultado;
    sinArreglos_ = nullptr;
    emit estudiado(ultimo_);
}

/// What is known without the repairs is known.
void Seguimiento::falla(const std::u16string& motivo) {
    if (sinArreglos_) da(sinArreglos_);
    if (!alDia()) fallida_ = version_;
    emit fallo(
        QStringLiteral("No se ha podido estudiar %1: %2")
            .arg(alDia() ? QStringLiteral("cómo se arreglan los errores") : QStringLiteral("lo escrito"),
                 motivo.empty() ? QStringLiteral("no hay memoria suficiente") : aQString(motivo)));
}

} // namespace norvik::taller
