// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

#include <memory>
#include <utility>

namespace norvik {

/// A new object that Qt owns: a parent that is among the arguments, or whoever takes it over next.
template <typename Tipo, typename... Argumentos>
Tipo& nuevo(Argumentos&&... argumentos) {
    return *std::make_unique<Tipo>(std::forward<Argumentos>(argumentos)...).release();
}

/// A window that goes with its scope, unless its parent went before and took it along.
template <typename Ventana>
class VentanaDeAmbito {
public:
    template <typename... Argumentos>
    explicit VentanaDeAmbito(Argumentos&&... argumentos)
        : ventana_(&nuevo<Ventana>(std::forward<Argumentos>(argumentos)...)) {}
    VentanaDeAmbito(const VentanaDeAmbito&) = delete;
    VentanaDeAmbito& operator=(const VentanaDeAmbito&) = delete;
    ~VentanaDeAmbito() { const std::unique_ptr<Ventana> propia(ventana_.data()); }

    bool vive() const { return !ventana_.isNull(); }
    Ventana& operator*() const { return *ventana_; }
    Ventana* operator->() const { return ventana_.data(); }

private:
    QPointer<Ventana> ventana_;
};

} // namespace norvik
