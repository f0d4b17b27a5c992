// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/generacion.hpp"
#include "norvik/control/ranurasDisenio.hpp"
#include "norvik/tools/etiquetaDeRuta.hpp"
#include "norvik/tools/paginaPropiedades.hpp"

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>

namespace norvik {

/// The page of the control's language: its name, its specification, its report and its loading module. While
/// it has a control, the shared slots of design time are that control's, and go back to it when the page
/// leaves it. Another page that takes the slots makes it give them back first.
class PPControl final : public PaginaPropiedades {
    Q_OBJECT

public:
    explicit PPControl(SistemaQt& sistema, QWidget* padre = nullptr);
    PPControl(const PPControl&) = delete;
    PPControl& operator=(const PPControl&) = delete;
    ~PPControl() override { cierra(); }

protected:
    void lee(ControlNorvik& control) override;
    bool escribe(ControlNorvik& control) override;
    void deja(ControlNorvik& control, Motivo motivo) override;

private:
    void dispone();
    void conecta();
    void tomaRanuras(ControlNorvik& control);
    void editarGramatica();
    void verInforme();
    void generarModulo();
    std::optional<Mensaje> construye();
    bool construyeConAviso();

    QComboBox lenguaje_{this};
    QGroupBox marco_{QStringLiteral("Información relativa a la Gramática"), this};
    QPushButton command4_{QStringLiteral("&Editar Gramática ..."), &marco_};
    QPushButton command5_{QStringLiteral("Ver Informe"), &marco_};
    QPushButton command6_{QStringLiteral("Generar Módulo VB"), &marco_};
    EtiquetaDeRuta resultado_{&marco_}; ///< where the last module was written
    ControlNorvik norvik1_;
    LenguajeAparte lenguajeAparte_;
    RanurasDisenio tomadas_; ///< the slots as they were when the control gave them
};

} // namespace norvik
