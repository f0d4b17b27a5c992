// SPDX-License-Identifier: MIT

#pragma once

#include "estudio.hpp"

#include "norvik/widget/trabajoDeFondo.hpp"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace norvik::taller {

/// Follows the typing: a short pause after a change it studies both texts in a thread of its own. The next
/// change ends that early, and what it would have given is of no use any more. Repairs of a wrong text may
/// take longer than a person waits: then a study without them comes first.
class Seguimiento final : public QObject {
    Q_OBJECT

public:
    struct Textos {
        std::u16string especificacion;
        std::u16string texto;
    };

    /// `textos` gives those of now.
    explicit Seguimiento(std::function<Textos()> textos);
    Seguimiento(const Seguimiento&) = delete;
    Seguimiento& operator=(const Seguimiento&) = delete;
    ~Seguimiento() override { parada_.request_stop(); }

    /// One of the texts is another.
    void cambio();
    /// The last study is of the texts of now.
    bool alDia() const { return estudiada_ == version_; }
    /// Repairs and all.
    bool completo() const { return alDia() && ultimo_ && !ultimo_->faltanArreglos; }

signals:
    void estudiado(const std::shared_ptr<const norvik::taller::Estudio>& estudio);
    void fallo(const QString& texto);

private:
    using Resultado = std::shared_ptr<const Estudio>;

    void empieza();
    void estudia(const Textos& textos, const Resultado& anterior, ErroresBuscados errores);
    void acaba(const std::optional<Resultado>& resultado, std::uint64_t version, const Textos& textos);
    void da(const Resultado& resultado);

    std::function<Textos()> textos_;
    std::uint64_t version_ = 0; ///< of the texts
    std::uint64_t estudiada_ = 0;
    Resultado ultimo_;
    Resultado sinArreglos_; ///< to be told if the one with repairs does not come soon
    QTimer pausa_, paciencia_;
    std::stop_source parada_; ///< of the work that goes on
    TrabajoDeFondo<Resultado> trabajo_;
};

} // namespace norvik::taller
