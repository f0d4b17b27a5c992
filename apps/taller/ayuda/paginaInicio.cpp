// SPDX-License-Identifier: MIT

#include "paginaInicio.hpp"

#include "enlaceOrden.hpp"

#include "norvik/tools/ventanas.hpp"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace norvik::taller {

namespace {

/// Two files of the same name are told apart by their folders.
QString nombreEntre(const QString& fichero, const QStringList& todos) {
    const QFileInfo suyo(fichero);
    const auto tocayos = std::ranges::count_if(
        todos, [&](const QString& otro) { return QFileInfo(otro).fileName() == suyo.fileName(); });
    return tocayos > 1 ? suyo.fileName() + QStringLiteral(" — ") + suyo.absoluteDir().dirName()
                       : suyo.fileName();
}

void ponLista(QVBoxLayout& columna, QListWidget& lista, const QString& titulo) {
    auto& etiqueta = nuevo<QLabel>(titulo);
    etiqueta.setTextFormat(Qt::PlainText);
    etiqueta.setBuddy(&lista);
    lista.setAccessibleName(QString(titulo).remove(u'&').remove(u':'));
    columna.addWidget(&etiqueta);
    columna.addWidget(&lista, 1);
}

} // namespace

PaginaInicio::PaginaInicio(const QList<Ejemplo>& ejemplos, QWidget* padre) : QScrollArea(padre) {
    setAccessibleName(QStringLiteral("Página de inicio"));
    todo_.setContentsMargins(24, 16, 24, 12);
    ponTitulo();
    todo_.addLayout(&columnas_, 1);
    columnas_.setHorizontalSpacing(24);
    ponNuevos();
    ponEjemplos(ejemplos);
    ponRecientes();
    ponPie();
    dentro_.setLayout(&todo_);
    setWidget(&dentro_);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
}

QLabel& PaginaInicio::rotulo(const QString& texto, double aumento) {
    auto& etiqueta = norvik::nuevo<QLabel>(texto);
    etiqueta.setTextFormat(Qt::PlainText);
    rotulos_.append({&etiqueta, aumento});
    ponLetras();
    return etiqueta;
}

/// Those of a title are its own, and do not follow the program's.
void PaginaInicio::ponLetras() {
    for (const auto& [etiqueta, aumento] : rotulos_) {
        QFont letra = font();
        letra.setPointSizeF(letra.pointSizeF() * aumento);
        letra.setBold(true);
        etiqueta->setFont(letra);
    }
}

void PaginaInicio::changeEvent(QEvent* evento) {
    QScrollArea::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) ponLetras();
}

void PaginaInicio::ponTitulo() {
    todo_.addWidget(&rotulo(QStringLiteral("Norvik"), 2.2));
    lema_.setText(QStringLiteral("Escriba un lenguaje y véalo trabajar mientras lo escribe."));
    lema_.setTextFormat(Qt::PlainText);
    todo_.addWidget(&lema_);
    todo_.addSpacing(8);
}

QVBoxLayout& PaginaInicio::columna(int numero, const QString& titulo) {
    auto& columna = norvik::nuevo<QVBoxLayout>();
    columnas_.addLayout(&columna, 0, numero);
    columnas_.setColumnStretch(numero, 1);
    columna.addWidget(&rotulo(titulo, 1.2));
    return columna;
}

void PaginaInicio::boton(QVBoxLayout& columna, const QString& titulo, const QString& explicacion,
                         const std::function<void()>& orden) {
    auto& boton = norvik::nuevo<EnlaceOrden>(titulo, explicacion);
    boton.setAutoDefault(true); // Return is as good as the space bar
    boton.setAccessibleDescription(explicacion);
    connect(&boton, &QPushButton::clicked, this, orden);
    columna.addWidget(&boton);
    if (focusProxy() == nullptr) setFocusProxy(&boton); // the first one
}

void PaginaInicio::ponNuevos() {
    QVBoxLayout& suya = columna(0, QStringLiteral("Un lenguaje nuevo"));
    for (const Plantilla& p : plantillas)
        boton(suya, QString::fromUtf8(p.titulo), QString::fromUtf8(p.explicacion),
              [this, &p] { emit nuevo(p); });
    suya.addStretch(1);
}

void PaginaInicio::ponEjemplos(const QList<Ejemplo>& ejemplos) {
    QVBoxLayout& suya = columna(1, QStringLiteral("Aprender"));
    boton(suya, QStringLiteral("Visita guiada"), QStringLiteral("De un conflicto a su cura, en siete pasos"),
          [this] { emit pideVisita(); });
    if (ejemplos.isEmpty()) return suya.addStretch(1);
    auto& lista = norvik::nuevo<QListWidget>();
    ponLista(suya, lista, QStringLiteral("E&jemplos:"));
    for (const Ejemplo& e : ejemplos) lista.addItem(e.nombre);
    lista.setCurrentRow(0);
    connect(&lista, &QListWidget::itemActivated, this, [this, &lista, ejemplos](const QListWidgetItem* fila) {
        emit ejemplo(ejemplos.at(lista.row(fila)));
    });
}

void PaginaInicio::ponRecientes() {
    QVBoxLayout& suya = columna(2, QStringLiteral("Seguir"));
    boton(suya, QStringLiteral("Abrir un lenguaje…"), QStringLiteral("Una especificación (.nvk)"),
          [this] { emit pideAbrir(); });
    ponLista(suya, recientes_, QStringLiteral("&Recientes:"));
    connect(&recientes_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* fila) {
        const QString fichero = fila->data(Qt::UserRole).toString();
        if (!fichero.isEmpty()) emit reciente(fichero);
    });
}

void PaginaInicio::ponPie() {
    auto& pie = norvik::nuevo<QHBoxLayout>();
    const auto pon = [&](const QString& titulo, void (PaginaInicio::*senal)()) {
        auto& boton = norvik::nuevo<QPushButton>(titulo);
        connect(&boton, &QPushButton::clicked, this, senal);
        pie.addWidget(&boton);
    };
    pon(QStringLiteral("&Manual"), &PaginaInicio::pideManual);
    pon(QStringLiteral("&Teclas"), &PaginaInicio::pideTeclas);
    pon(QStringLiteral("&Ir al formulario"), &PaginaInicio::pideFormulario);
    pie.addStretch(1);
    siempre_.setText(QStringLiteral("Enseñar e&sta página al empezar"));
    connect(&siempre_, &QCheckBox::toggled, this, &PaginaInicio::siempre);
    pie.addWidget(&siempre_);
    todo_.addLayout(&pie);
}

void PaginaInicio::ponRecientes(const QStringList& ficheros) {
    recientes_.clear();
    for (const QString& fichero : ficheros) {
        if (!QFileInfo::exists(fichero)) continue;
        auto& fila = norvik::nuevo<QListWidgetItem>(nombreEntre(fichero, ficheros), &recientes_);
        fila.setData(Qt::UserRole, fichero);
        fila.setToolTip(ayudaLlana(fichero));
    }
    if (recientes_.count() == 0)
        norvik::nuevo<QListWidgetItem>(QStringLiteral("Todavía no hay ninguno"), &recientes_)
            .setFlags(Qt::ItemIsEnabled);
}

} // namespace norvik::taller
