// SPDX-License-Identifier: MIT

#include "norvik/platform/qt/teclas.hpp"

#include "norvik/platform/cajaTexto.hpp"

#include <algorithm>
#include <array>
#include <iterator>

namespace norvik {

namespace {

struct Equivalencia {
    int qt; ///< Qt's number of the key, or that of its place
    std::int16_t codigo;
};

constexpr auto sinCaracter = std::to_array<Equivalencia>(
    {{Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},     {Qt::Key_Clear, 12},
     {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},      {Qt::Key_Control, 17},
     {Qt::Key_Alt, 18},      {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20},   {Qt::Key_Escape, 27},
     {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},        {Qt::Key_Home, 36},
     {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},      {Qt::Key_Down, 40},
     {Qt::Key_Print, 44},    {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},     {Qt::Key_Meta, 91},
     {Qt::Key_Menu, 93},     {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145}});

constexpr auto signos = std::to_array<Equivalencia>({{Qt::Key_Space, 32},
                                                     {Qt::Key_Semicolon, 186},
                                                     {Qt::Key_Equal, 187},
                                                     {Qt::Key_Plus, 187},
                                                     {Qt::Key_Comma, 188},
                                                     {Qt::Key_Minus, 189},
                                                     {Qt::Key_Period, 190},
                                                     {Qt::Key_Slash, 191},
                                                     {Qt::Key_QuoteLeft, 192},
                                                     {Qt::Key_BracketLeft, 219},
                                                     {Qt::Key_Backslash, 220},
                                                     {Qt::Key_BracketRight, 221},
                                                     {Qt::Key_Apostrophe, 222}});

constexpr auto teclado = std::to_array<Equivalencia>({{Qt::Key_Asterisk, 106},
                                                      {Qt::Key_Plus, 107},
                                                      {Qt::Key_Minus, 109},
                                                      {Qt::Key_Period, 110},
                                                      {Qt::Key_Comma, 110},
                                                      {Qt::Key_Slash, 111}});

/// What a key writes with the shift key, where its place does not tell which one it is.
constexpr auto conMayusculas = std::to_array<Equivalencia>(
    {{Qt::Key_ParenRight, '0'},  {Qt::Key_Exclam, '1'},    {Qt::Key_At, '2'},
     {Qt::Key_NumberSign, '3'},  {Qt::Key_Dollar, '4'},    {Qt::Key_Percent, '5'},
     {Qt::Key_AsciiCircum, '6'}, {Qt::Key_Ampersand, '7'}, {Qt::Key_Asterisk, '8'},
     {Qt::Key_ParenLeft, '9'},   {Qt::Key_Colon, 186},     {Qt::Key_Less, 188},
     {Qt::Key_Underscore, 189},  {Qt::Key_Greater, 190},   {Qt::Key_Question, 191},
     {Qt::Key_AsciiTilde, 192},  {Qt::Key_BraceLeft, 219}, {Qt::Key_Bar, 220},
     {Qt::Key_BraceRight, 221},  {Qt::Key_QuoteDbl, 222}});

/// Keys that are the same on every keyboard whatever they write, by their place: X and Wayland number them.
constexpr auto sitios = std::to_array<Equivalencia>({{10, '1'},
                                                     {11, '2'},
                                                     {12, '3'},
                                                     {13, '4'},
                                                     {14, '5'},
                                                     {15, '6'},
                                                     {16, '7'},
                                                     {17, '8'},
                                                     {18, '9'},
                                                     {19, '0'},
                                                     {59, 188},
                                                     {60, 190},
                                                     {94, 226}});

struct EnSitio {
    int sitio;
    Equivalencia tecla;
};

/// Signs that have keys of their own on Spanish keyboards, on the same ones everywhere in that language.
constexpr auto espanol =
    std::to_array<EnSitio>({{20, {Qt::Key_Question, 222}}, // on the key of the apostrophe
                            {21, {Qt::Key_exclamdown, 221}},
                            {21, {Qt::Key_questiondown, 221}},
                            {35, {Qt::Key_Asterisk, 187}}, // on that of the plus sign
                            {49, {Qt::Key_masculine, 220}},
                            {49, {Qt::Key_ordfeminine, 220}},
                            {51, {Qt::Key_Ccedilla, 191}}});

constexpr std::int16_t soloCaracter = 231;

std::int16_t codigoEspanol(int sitio, int qt) {
    const auto* fila =
        std::ranges::find_if(espanol, [&](const EnSitio& e) { return e.sitio == sitio && e.tecla.qt == qt; });
    return fila == std::end(espanol) ? std::int16_t{0} : fila->tecla.codigo;
}

template <std::size_t N>
std::int16_t codigoEn(const std::array<Equivalencia, N>& tabla, int qt) {
    const auto* fila = std::ranges::find(tabla, qt, &Equivalencia::qt);
    return fila == std::end(tabla) ? std::int16_t{0} : fila->codigo;
}

/// Code of a key in a row of keys with consecutive codes, 0 when it is not in it.
std::int16_t codigoEnFila(int qt, int primera, int ultima, int codigo) {
    return qt < primera || qt > ultima ? std::int16_t{0} : static_cast<std::int16_t>(codigo + qt - primera);
}

std::int16_t codigoDeTecladoNumerico(int qt) {
    const std::int16_t cifra = codigoEnFila(qt, Qt::Key_0, Qt::Key_9, 96);
    return cifra != 0 ? cifra : codigoEn(teclado, qt);
}

} // namespace

std::int16_t codigoDeTecla(const QKeyEvent& evento) {
    const int qt = evento.key();
    const int sitio = static_cast<int>(evento.nativeScanCode());
    const bool numerico = evento.modifiers().testFlag(Qt::KeypadModifier);
    const auto candidatos = std::to_array<std::int16_t>(
        {numerico ? codigoDeTecladoNumerico(qt) : std::int16_t{0}, codigoEn(sitios, sitio),
         codigoEspanol(sitio, qt), codigoEn(sinCaracter, qt), codigoEn(signos, qt),
         codigoEnFila(qt, Qt::Key_0, Qt::Key_9, '0'), codigoEnFila(qt, Qt::Key_A, Qt::Key_Z, 'A'),
         codigoEnFila(qt, Qt::Key_F1, Qt::Key_F24, 112), codigoEn(conMayusculas, qt),
         evento.text().isEmpty() ? std::int16_t{0} : soloCaracter});
    const auto* codigo = std::ranges::find_if(candidatos, [](std::int16_t c) { return c != 0; });
    return codigo == std::end(candidatos) ? std::int16_t{0} : *codigo;
}

Qt::Key teclaDeCodigo(std::int16_t codigo) {
    const auto* fila = std::ranges::find(sinCaracter, codigo, &Equivalencia::codigo);
    return fila == std::end(sinCaracter) ? Qt::Key_unknown : static_cast<Qt::Key>(fila->qt);
}

std::int16_t mascaraDe(Qt::KeyboardModifiers teclas) {
    const int bits = (teclas.testFlag(Qt::ShiftModifier) ? mascara::mayusculas : 0) |
                     (teclas.testFlag(Qt::ControlModifier) ? mascara::control : 0) |
                     (teclas.testFlag(Qt::AltModifier) ? mascara::alt : 0);
    return static_cast<std::int16_t>(bits);
}

std::int16_t mascaraDe(const QKeyEvent& evento) {
    const int propia = evento.key() == Qt::Key_Shift     ? mascara::mayusculas
                       : evento.key() == Qt::Key_Control ? mascara::control
                       : evento.key() == Qt::Key_Alt     ? mascara::alt
                                                         : 0;
    const int otras = mascaraDe(evento.modifiers()) & ~propia;
    return static_cast<std::int16_t>(evento.type() == QEvent::KeyPress ? otras | propia : otras);
}

std::int16_t botonDe(const QMouseEvent& evento) {
    const Qt::MouseButtons botones = evento.type() == QEvent::MouseMove ? evento.buttons() : evento.button();
    return static_cast<std::int16_t>((botones & Qt::LeftButton ? 1 : 0) |
                                     (botones & Qt::RightButton ? 2 : 0) |
                                     (botones & Qt::MiddleButton ? 4 : 0));
}

} // namespace norvik
