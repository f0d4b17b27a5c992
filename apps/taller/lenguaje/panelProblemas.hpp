// SPDX-License-Identifier: MIT

#pragma once

#include "historias.hpp"
#include "panel.hpp"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace norvik::taller {

/// What is wrong or odd in both texts, each with its repairs; of a conflict its story.
class PanelProblemas final : public Panel {
    Q_OBJECT

public:
    /// The stories outlive it.
    PanelProblemas(Historias& historias, QWidget* padre);

    void ponEstudio(std::shared_ptr<const Estudio> estudio) override;
    bool muestraLoQueNoCompila() const override { return true; }
    /// What came of asking for a repair.
    enum class Peticion : std::uint8_t { NoHay, Hecha, PorElegir };
    /// The repair of the first problem in the list that has any, of those at a place of a text (0-based, in
    /// characters) if there are. Of several the person chooses: the list is at the first one.
    Peticion arregla(Lado lado, std::int32_t lugar);

    // For those who drive it from outside.
    QTreeWidget& lista() { return lista_; }
    QPlainTextEdit& detalle() { return detalle_; }
    QToolButton& filtro(Gravedad gravedad) { return filtros_[static_cast<std::size_t>(gravedad)]; }

signals:
    /// The person wants to be told the conflict of a diagnostic of the specification, by its number.
    void conflictoPedido(std::size_t diagnostico);

protected:
    void alCambiarLetra() override { ponLetraDeDetalle(); }

private:
    /// What a row stands for: a problem, another place of it, a repair, or its story.
    struct Fila {
        Lado lado = Lado::Especificacion;
        std::size_t diagnostico = 0;
        Rango lugar;
        std::optional<Arreglo> arreglo{};
        bool esHistoria = false;
    };

    void compone();
    void llena();
    void llenaLado(Lado lado, const QString& titulo);
    void anade(QTreeWidgetItem& grupo, Lado lado, std::size_t numero);
    QTreeWidgetItem& anadeFila(QTreeWidgetItem& padre, const Fila& fila, const QString& texto);
    /// The stories are known, and with them what cures their conflicts.
    void anadeCuras();
    void quitaCuras();
    void ponLetraDeDetalle();
    void cuentaFiltros();
    const std::vector<Diagnostico>& diagnosticos(Lado lado) const;
    const Fila* filaDe(const QTreeWidgetItem* elemento) const;
    void elige(const QTreeWidgetItem* elemento);
    void ve(const QTreeWidgetItem* elemento);
    void detalla(const Fila& fila);
    static Eleccion eleccionDe(const Fila& fila);

    Historias& historias_;
    QSplitter centro_;
    QWidget lado_;
    QVBoxLayout columna_;
    QHBoxLayout barra_;
    std::array<QToolButton, 3> filtros_;
    QTreeWidget lista_;
    QPlainTextEdit detalle_;
    std::shared_ptr<const Estudio> estudio_;
    std::vector<Fila> filas_;
    std::size_t filasSinCuras_ = 0; ///< those before the cures, which come last
    bool callado_ = false;          ///< the list is being filled
};

} // namespace norvik::taller
