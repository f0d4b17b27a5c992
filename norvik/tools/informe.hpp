// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/platform/qt/sistemaQt.hpp"
#include "norvik/tools/etiquetaDeRuta.hpp"
#include "norvik/tools/tablaInforme.hpp"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextDocument>

#include <memory>

namespace norvik {

/// The report on a grammar as the last generation left it: rules and sets, automaton, table. Grammar and
/// lexer must outlive the window unchanged.
class Informe final : public QDialog {
    Q_OBJECT

public:
    /// With the text of the automaton.
    Informe(const gramatica& gramatica, const pilaTokens& lexico, SistemaQt& sistema, QWidget* padre,
            std::unique_ptr<QTextDocument> automata);

private:
    void nombraElementos();
    void dispone();
    void dispone(QWidget& vista, const QString& nombre);
    void conecta();
    void llena();
    void guarda();

    const gramatica& gramatica_;
    SistemaQt& sistema_;
    ModeloTabla modelo_;
    QPushButton command1_{QStringLiteral("Guardar"), this};
    QPushButton command2_{QStringLiteral("Imprimir"), this};
    QPushButton command3_{QStringLiteral("Problemas"), this};
    EtiquetaDeRuta guardado_{this}; ///< says where the report was written
    QTabWidget ssTab1_{this};
    const std::unique_ptr<QTextDocument> textoAutomata_;
    QPlainTextEdit texto_;
    QPlainTextEdit automata_;
    TablaInforme tabla_;
};

/// Shows the report window and comes back when it is closed, or at once when a person cancels what takes
/// long.
void MuestraInforme(const gramatica& gramatica, const pilaTokens& lexico, SistemaQt& sistema,
                    QWidget* padre = nullptr);

} // namespace norvik
