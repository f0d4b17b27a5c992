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
/// take longer than a person waits: then a study without them comes first. One that fails leaves the one
/// before it, which is told to be old until the next change.
class Seguimiento final : public QObject {
    Q_OBJECT

public:
    struct Textos {
        std::u16string especificacion;
        std::u16string texto;
    };

    using Estudia = std::function<std::shared_ptr<const Estudio>(
        const Textos& textos, const std::shared_ptr<const Estudio>& anterior, const std::stop_token& parada,
        ErroresBuscados errores)>;

    /// `textos` gives those of now; any thread may call `estudia`.
    explicit Seguimiento(std::function<Textos()> textos, Estudia estudia = &deTextos);
    Seguimiento(const Seguimiento&) = delete;
    Seguimiento& operator=(const Seguimiento&) = delete;
    ~Seguimiento() override { parada_.request_stop(); }

    /// One of the texts is another.
    void cambio();
    /// The last study is of the texts of now.
    bool alDia() const { return estudiada_ == version_; }
    /// The texts of now could not be studied; why was told.
    bool fallido() const { return fallida_ == version_; }
    /// Repairs and all.
    bool completo() const { return alDia() && ultimo_ && !ultimo_->faltanArreglos; }

signals:
    void estudiado(const std::shared_ptr<const norvik::taller::Estudio>& estudio);
    void fallo(const QString& texto);

private:
    using Resultado = std::shared_ptr<const Estudio>;
    /// What came of a study: nothing when it was stopped, or why it failed.
    struct Desenlace {
        Resultado resultado;
        std::u16string motivo;
    };

    static Resultado deTextos(const Textos& textos, const Resultado& anterior, const std::stop_token& parada,
                              ErroresBuscados errores) {
        return estudia(textos.especificacion, textos.texto, anterior, parada, errores);
    }
    void empieza();
    void lanza(const Textos& textos, const Resultado& anterior, ErroresBuscados errores);
    void acaba(const Desenlace& desenlace, std::uint64_t version, const Textos& textos);
    void da(const Resultado& resultado);
    void falla(const std::u16string& motivo);

    std::function<Textos()> textos_;
    Estudia estudia_;
    std::uint64_t version_ = 1; ///< of the texts
    std::uint64_t estudiada_ = 0;
    std::uint64_t fallida_ = 0;
    Resultado ultimo_;
    Resultado sinArreglos_; ///< to be told if the one with repairs does not come soon
    QTimer pausa_, paciencia_;
    std::stop_source parada_; ///< of the work that goes on
    TrabajoDeFondo<Desenlace> trabajo_;
};

} // namespace norvik::taller
