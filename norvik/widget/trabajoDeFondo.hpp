// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaObject>
#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>

namespace norvik {

/// Work of one kind in a thread of its own, one at a time, whose result comes back in the thread of the
/// windows.
template <typename Resultado>
class TrabajoDeFondo {
public:
    using Trabajo = std::function<Resultado(const std::stop_token& parada)>;
    /// Nothing when the work failed.
    using AlAcabar = std::function<void(std::optional<Resultado> resultado)>;

    TrabajoDeFondo() = default;
    TrabajoDeFondo(const TrabajoDeFondo&) = delete;
    TrabajoDeFondo& operator=(const TrabajoDeFondo&) = delete;
    /// Ends the work early, and nobody hears of it any more.
    ~TrabajoDeFondo() = default;

    bool trabaja() const { return trabaja_; }
    /// Gives up what goes on: it ends early, and nobody hears of it.
    void para() {
        ++numero_;
        trabaja_ = false;
        hilo_ = {};
    }
    /// Does nothing while other work goes on. `alAcabar` may begin more work, and delete this. Raises what a
    /// system does that has no thread left.
    void empieza(Trabajo trabajo, AlAcabar alAcabar) {
        if (trabaja_) return;
        hilo_ = std::jthread([this, numero = numero_, trabajo = std::move(trabajo),
                              alAcabar = std::move(alAcabar)](const std::stop_token& parada) mutable {
            const auto resultado = std::make_shared<std::optional<Resultado>>();
            try {
                *resultado = trabajo(parada);
            } catch (...) {
                resultado->reset();
            }
            if (parada.stop_requested()) return;
            QMetaObject::invokeMethod(
                &contexto_,
                [this, numero, resultado, alAcabar = std::move(alAcabar)] {
                    if (numero != numero_) return;
                    trabaja_ = false;
                    alAcabar(std::move(*resultado));
                },
                Qt::QueuedConnection);
        });
        trabaja_ = true;
    }

private:
    QObject contexto_;         ///< of what comes back
    std::uint64_t numero_ = 0; ///< of the work that is awaited
    bool trabaja_ = false;
    std::jthread hilo_; ///< goes first
};

} // namespace norvik
