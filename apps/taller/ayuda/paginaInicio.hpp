// SPDX-License-Identifier: MIT

#pragma once

#include "ejemplos.hpp"
#include "plantillas.hpp"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWidget>

#include <functional>
#include <utility>

namespace norvik::taller {

/// What a person can begin with: a new language, an example, what was open the last time, the tour.
class PaginaInicio final : public QScrollArea {
    Q_OBJECT

public:
    PaginaInicio(const QList<Ejemplo>& ejemplos, QWidget* padre);

    /// The files that were last open, the last one first.
    void ponRecientes(const QStringList& ficheros);
    void ponSiempre(bool siempre) { siempre_.setChecked(siempre); }

    QListWidget& recientes() { return recientes_; }

signals:
    void nuevo(const norvik::taller::Plantilla& plantilla);
    void ejemplo(const norvik::taller::Ejemplo& ejemplo);
    void reciente(const QString& fichero);
    void pideAbrir();
    void pideFormulario();
    void pideVisita();
    void pideManual();
    void pideTeclas();
    /// It is to be shown whenever the workbench starts.
    void siempre(bool siempre);

protected:
    void changeEvent(QEvent* evento) override;

private:
    QLabel& rotulo(const QString& texto, double aumento);
    void ponLetras();
    void ponTitulo();
    void ponNuevos();
    void ponEjemplos(const QList<Ejemplo>& ejemplos);
    void ponRecientes();
    void ponPie();
    QVBoxLayout& columna(int numero, const QString& titulo);
    void boton(QVBoxLayout& columna, const QString& titulo, const QString& explicacion,
               const std::function<void()>& orden);

    QWidget dentro_;
    QVBoxLayout todo_;
    QGridLayout columnas_;
    QLabel lema_;
    QList<std::pair<QLabel*, double>> rotulos_; ///< and how much larger than the rest
    QListWidget recientes_;
    QCheckBox siempre_;
};

} // namespace norvik::taller
