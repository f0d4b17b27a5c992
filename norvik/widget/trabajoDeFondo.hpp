// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaObject>
#include <QObject>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <new>
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
        auto encargo = std::make_shared<Encargo>(Encargo{std::move(trabajo), std::move(alAcabar), {}});
        hilo_ = std::jthread(
            [this, numero = numero_, encargo = std::move(encargo)](const std::stop_token& parada) {
                try {
                    encargo->resultado = encargo->trabajo(parada);
                } catch (...) {
                    encargo->resultado.reset();
                }
                encargo->trabajo = nullptr; // what it holds is freed here: nobody waits
                while (!parada.stop_requested() && !entrega(numero, encargo))
                    std::this_thread::sleep_for(sinMemoria);
            });
        trabaja_ = true;
    }

private:
    struct Encargo {
        Trabajo trabajo;
        AlAcabar alAcabar;
        std::optional<Resultado> resultado;
    };
    static constexpr std::chrono::milliseconds sinMemoria{50}; ///< until it is asked for again

    /// False when there is no memory for it: nothing may leave a thread, and whoever waits would wait for
    /// ever.
    bool entrega(std::uint64_t numero, const std::shared_ptr<Encargo>& encargo) noexcept {
        try {
            return QMetaObject::invokeMethod(
                &contexto_,
                [this, numero, encargo] {
                    if (numero != numero_) return;
                    trabaja_ = false;
                    encargo->alAcabar(std::move(encargo->resultado));
                },
                Qt::QueuedConnection);
        } catch (const std::bad_alloc&) {
            return false;
        }
    }

    QObject contexto_;         ///< of what comes back
    std::uint64_t numero_ = 0; ///< of the work that is awaited
    bool trabaja_ = false;
    std::jthread hilo_; ///< goes first
};

} // namespace norvik
