// SPDX-License-Identifier: MIT

#include "visita.hpp"

#include <array>

namespace norvik::taller {

namespace {

/// It has two conflicts, which its text runs into.
constexpr std::u16string_view ambigua = u"'% metodo: lalr\r\n\r\n"
                                        u"Token num = \"[0-9]+\", TipoToken = TTNumero (\"número\");\r\n"
                                        u"Token mas = \"\\+\", TipoToken = TTOperador (\"+\");\r\n"
                                        u"Token por = \"\\*\", TipoToken = TTOperador (\"*\");\r\n\r\n"
                                        u"E -> E mas E | E por E | num;\r\n";
constexpr std::u16string_view suma = u"1 + 2 * 3";

struct Paso {
    const char* titulo;
    const char* texto;
    QWidget& (*deQue)(VentanaLenguaje& ventana);
};

QWidget& especificacion(VentanaLenguaje& v) {
    return v.especificacion().norvik();
}
QWidget& texto(VentanaLenguaje& v) {
    return v.texto().norvik();
}
QWidget& problemas(VentanaLenguaje& v) {
    return v.problemas();
}
QWidget& arbol(VentanaLenguaje& v) {
    return v.arbol();
}
QWidget& pasos(VentanaLenguaje& v) {
    return v.pasos();
}

constexpr std::array pasosDeLaVisita = {
    Paso{"La especificación",
         "A la izquierda está el lenguaje: primero los tokens, cada uno con su patrón; después las reglas. "
         "Esta dice "
         "que una expresión E es una suma, un producto o un número.",
         especificacion},
    Paso{"Un texto",
         "A la derecha, un texto de ese lenguaje. Cambie algo, quite un número por ejemplo: lo que pasa se "
         "ve al momento "
         "en los paneles. Déjelo después como estaba: 1 + 2 * 3.",
         texto},
    Paso{"Problemas",
         "Hay conflictos: las reglas no dicen si 1 + 2 * 3 es (1 + 2) * 3 o 1 + (2 * 3). Elija un conflicto: "
         "al lado se "
         "cuenta su historia, con los dos árboles.",
         problemas},
    Paso{"La cura",
         "Debajo de cada conflicto hay filas que empiezan por «Arreglar». Pulse una: escribe en la "
         "especificación la "
         "línea que decide. Cúrelos todos, hasta que no quede ninguno.",
         problemas},
    Paso{"Árbol",
         "A la derecha está el árbol del texto. Elija una fila: se selecciona su trozo de texto, y su regla. "
         "Y al revés: "
         "ponga el cursor en el texto, y el árbol le sigue.",
         arbol},
    Paso{"Pasos",
         "El análisis, como una película: avance y retroceda con Alt y las flechas. Cada paso dice qué se "
         "hace, y por "
         "qué.",
         pasos},
    Paso{"Suyo",
         "Ctrl+S guarda lo que escribe; Mayús+F6 lleva el lenguaje al editor del formulario; F1 abre el "
         "manual por lo que tenga delante. Ahora cambie las reglas y mire qué pasa.",
         especificacion},
};

} // namespace

Visita::Visita(VentanaLenguaje& ventana)
    : QDockWidget(QStringLiteral("Visita guiada"), &ventana), ventana_(ventana) {
    setObjectName(QStringLiteral("visita"));
    compone();
    connect(&anterior_, &QPushButton::clicked, this, [this] { sinFallos([this] { ponPaso(paso_ - 1); }); });
    connect(&siguiente_, &QPushButton::clicked, this, [this] { sinFallos([this] { ponPaso(paso_ + 1); }); });
    connect(&acaba_, &QPushButton::clicked, this, &QWidget::close);
    ventana_.addDockWidget(Qt::TopDockWidgetArea, this);
    hide();
}

void Visita::compone() {
    anterior_.setText(QStringLiteral("An&terior"));
    siguiente_.setText(QStringLiteral("&Siguiente"));
    acaba_.setText(QStringLiteral("Aca&bar"));
    for (QLabel* const etiqueta : {&titulo_, &texto_}) {
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setWordWrap(true);
        etiqueta->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
    QFont letra = titulo_.font();
    letra.setBold(true);
    titulo_.setFont(letra);
    fila_.addWidget(&titulo_, 1);
    for (QPushButton* const boton : {&anterior_, &siguiente_, &acaba_}) fila_.addWidget(boton);
    columna_.addLayout(&fila_);
    columna_.addWidget(&texto_);
    todo_.setLayout(&columna_);
    setWidget(&todo_);
}

void Visita::empieza() {
    if (!ventana_.empieza(ambigua, suma)) return;
    ventana_.trae();
    show();
    ponPaso(0);
}

void Visita::ponPaso(int paso) {
    paso_ = paso;
    const auto cuantos = static_cast<int>(pasosDeLaVisita.size());
    const Paso& suyo = pasosDeLaVisita.at(static_cast<std::size_t>(paso));
    titulo_.setText(
        QStringLiteral("%1 de %2: %3").arg(paso + 1).arg(cuantos).arg(QString::fromUtf8(suyo.titulo)));
    texto_.setText(QString::fromUtf8(suyo.texto));
    setAccessibleDescription(titulo_.text() + QStringLiteral(". ") + texto_.text());
    anterior_.setEnabled(paso > 0);
    siguiente_.setEnabled(paso + 1 < cuantos);
    QWidget& deQue = suyo.deQue(ventana_);
    deQue.show();
    deQue.raise();
    if (siguiente_.isEnabled()) siguiente_.setFocus(); // the tour goes on with one key
}

} // namespace norvik::taller
