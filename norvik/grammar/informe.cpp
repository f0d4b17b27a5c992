#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/grammar/lineas.hpp"
#include "norvik/platform/sistema.hpp"

#include <algorithm>

// The report on a grammar, as a file and as the parts that a window shows, and the list of conflicts. All of
// them are made of the same pieces.
namespace norvik {

namespace {

constexpr std::u16string_view sangria = u"    ";
constexpr std::u16string_view nota = u"(NOTA: El símbolo 'Ø' representa la cadena vacía)";
const std::u16string raya(48, u'-');
const std::u16string barras(110, u'/');

void escribeSeparador(std::u16string& texto) {
    escribeLinea(texto, raya);
    escribeLinea(texto);
}

} // namespace

// Rules and sets -------------------------------------------------------------------------------------------

void gramatica::escribeReglas(std::u16string& texto) const {
    escribeLinea(texto, u"Informe sobre la gramática actual:");
    escribeLinea(texto);
    escribeLinea(texto);
    escribeLinea(texto, u"Reglas de la Gramática:");
    escribeLinea(texto);
    int i = 0;
    for (const Regla& regla : reglas_) escribeLinea(texto, ++i, u".\t", regla.cabeza, u" -> ", regla.cuerpo);
    escribeLinea(texto);
    escribeLinea(texto);
}

std::u16string gramatica::listaDe(const ConjuntoNumerado& conjunto) const {
    std::u16string lista;
    for (const Simbolo simbolo : conjunto.elementos) {
        if (!lista.empty()) lista += u", ";
        lista += partidas_.texto(simbolo);
    }
    return lista;
}

void gramatica::escribeConjuntos(std::u16string_view titulo, std::u16string_view nombre,
                                 const std::vector<ConjuntoNumerado>& conjuntos,
                                 std::u16string& texto) const {
    escribeLinea(texto);
    escribeLinea(texto, titulo);
    escribeLinea(texto);
    for (const ConjuntoNumerado& conjunto : conjuntos)
        escribeLinea(texto, nombre, u"(", partidas_.texto(conjunto.nombre), u") = {", listaDe(conjunto),
                     u"}");
    escribeLinea(texto);
    escribeLinea(texto);
}

void gramatica::escribePredict(std::u16string& texto) const {
    escribeLinea(texto, u"Conjuntos Predict:");
    escribeLinea(texto);
    std::int16_t k = 0;
    for (const ConjuntoNumerado& conjunto : conjuntos_.predict) {
        const auto& [cabeza, cuerpo, elementos] = reglaEn(++k);
        escribeLinea(texto, u"PREDICT(", cabeza, u" -> ", cuerpo, u")  =  {", listaDe(conjunto), u"}");
    }
    escribeLinea(texto);
    escribeLinea(texto);
}

std::u16string gramatica::textoInformeGeneral() const {
    std::u16string texto;
    escribeReglas(texto);
    escribeConjuntos(u"Conjuntos Primeros:", u"PRIMEROS", conjuntos_.primeros, texto);
    escribeConjuntos(u"Conjuntos Siguientes:", u"SIGUIENTES", conjuntos_.siguientes, texto);
    escribePredict(texto);
    escribeLinea(texto, u"Símbolos terminales: ", terminales_.toStringConjunto());
    escribeLinea(texto, u"Símbolos no terminales: ", variables_.toStringConjunto());
    escribeLinea(texto, nota);
    return texto;
}

// Automaton ------------------------------------------------------------------------------------------------

std::u16string gramatica::textoAutomata() const {
    std::u16string texto;
    for (const estadoAutomata& estado : estadosAutomata_) escribeEstado(estado, texto);
    return texto;
}

void gramatica::escribeEstado(const estadoAutomata& estado, std::u16string& texto) const {
    const std::u16string_view inicial = reglas_.front().cabeza;
    escribeLinea(texto, u"Estado ", estado.getNumEstado(), u":");
    escribeLinea(texto);
    if (estado.getNumEstado() == 0) escribeLinea(texto, sangria, inicial, u"' -> .", inicial);
    if (estado.getNumEstado() == 1) escribeLinea(texto, sangria, inicial, u"' -> ", inicial, u".");
    for (const auto [numero, punto] : estado.items()) {
        const Regla& regla = reglaEn(numero);
        const std::u16string cuerpo =
            partidas_.esVacia(numero) ? std::u16string(u".") : dameReglaString(regla.cuerpo, punto);
        escribeLinea(texto, sangria, regla.cabeza, u" -> ", cuerpo);
    }
    const std::u16string lineas = transiciones(estado);
    if (!lineas.empty()) escribeLinea(texto, u"Transiciones:");
    texto += lineas;
    escribeSeparador(texto);
}

std::u16string gramatica::transiciones(const estadoAutomata& estado) const {
    std::u16string lineas;
    if (estado.getNumEstado() == 0) escribeLinea(lineas, sangria, reglas_.front().cabeza, u" -> ", 1);
    std::vector<bool> vistos(partidas_.numSimbolos());
    for (std::size_t i = 0; i < estado.items().size(); ++i) {
        if (estado.adyacentes()[i] == estadoAutomata::sinTransicion) continue;
        const auto [regla, punto] = estado.items()[i];
        const Simbolo siguiente = partidas_.cuerpo(regla)[static_cast<std::size_t>(punto)];
        if (vistos[static_cast<std::size_t>(siguiente)]) continue;
        vistos[static_cast<std::size_t>(siguiente)] = true;
        escribeLinea(lineas, sangria, partidas_.texto(siguiente), u" -> ", estado.adyacentes()[i]);
    }
    return lineas;
}

// Table ----------------------------------------------------------------------------------------------------

std::u16string_view gramatica::encabezadoColumna(std::int16_t columna) const {
    return simbolos_.simboloAt(columna);
}

bool gramatica::esColumnaDeVariable(std::int16_t columna) const {
    return esMayusculaAZ(encabezadoColumna(columna).front());
}

bool gramatica::enConflicto(std::int16_t fila, std::int16_t columna) const {
    return conflicto(fila, columna) != 0 && !esColumnaDeVariable(columna);
}

/// An entry of a terminal's column: D5 or R3, and the rule that lost a conflict with it.
std::u16string gramatica::accion(std::int16_t fila, std::int16_t columna) const {
    const std::int16_t valor = tabla_.en(fila, columna);
    std::u16string texto = valor > 0 ? u"D" + aTexto(valor) : u"R" + aTexto(-valor);
    if (const std::int16_t perdedora = conflicto(fila, columna); perdedora != 0)
        texto += u" / R" + aTexto(perdedora);
    return texto;
}

std::u16string gramatica::celdaTabla(std::int16_t fila, std::int16_t columna) const {
    const std::int16_t valor = tabla_.en(fila, columna);
    if (fila == 1 && columna == columnas().inicial + 1) return u"1";
    if (fila == 2 && columna == columnas().fin + 1) return u"ACEPTAR";
    if (valor == 0) return {};
    return esColumnaDeVariable(columna) ? aTexto(valor) : accion(fila, columna);
}

void gramatica::escribeEntrada(std::int16_t fila, std::int16_t columna, std::u16string& texto) const {
    if (enConflicto(fila, columna))
        escribeLinea(texto, u"tablaSLR[", fila - 1, u"][", columna - 1, u"]= ", accion(fila, columna), u";");
    else
        escribeLinea(texto, sangria, u"tablaSLR[", fila - 1, u"][", columna - 1, u"] = ",
                     tabla_.en(fila, columna), u";");
}

void gramatica::escribeTabla(std::u16string& texto, const SumideroDeTexto& sumidero) const {
    const std::int16_t total = simbolos_.totalElementos();
    escribeLinea(texto, u"//Simbolos:");
    for (std::int16_t c = 1; c <= total; ++c)
        escribeLinea(texto, u"columna ", c - 1, u" = ", encabezadoColumna(c));
    escribeLinea(texto);
    escribeLinea(texto, u"//Tabla: (Desplazamientos: números positivos. Reducciones: números negativos)");
    if (const int c = columnas().inicial; c >= 0) escribeLinea(texto, sangria, u"tablaSLR[0][", c, u"] = 1");
    if (const int c = columnas().fin; c >= 0)
        escribeLinea(texto, sangria, u"tablaSLR[1][", c, u"] = ACEPTAR");
    for (std::int16_t f = 1; f <= filasVigentes(); ++f) {
        for (const auto& [fila, columna, valor] : celdas(f)) escribeEntrada(fila, columna, texto);
        entregaSiSonMuchas(texto, sumidero);
    }
}

// The whole file -------------------------------------------------------------------------------------------

void gramatica::escribeInforme(const SumideroDeTexto& sumidero) const {
    std::u16string texto;
    escribeReglas(texto);
    escribeSeparador(texto);
    escribeConjuntos(u"Conjuntos Primeros:", u"PRIMEROS", conjuntos_.primeros, texto);
    escribeSeparador(texto);
    escribeConjuntos(u"Conjuntos Siguientes:", u"SIGUIENTES", conjuntos_.siguientes, texto);
    escribeSeparador(texto);
    escribePredict(texto);
    escribeLinea(texto, nota);
    escribeLinea(texto);
    escribeLinea(texto, barras);
    escribeLinea(texto);
    escribeLinea(texto, u"Especificación del automata:");
    escribeLinea(texto);
    escribeLinea(texto);
    for (const estadoAutomata& estado : estadosAutomata_) {
        escribeEstado(estado, texto);
        entregaSiSonMuchas(texto, sumidero);
    }
    escribeLinea(texto, barras);
    escribeLinea(texto);
    escribeLinea(texto);
    escribeLinea(texto, u"//Tabla SLR:");
    escribeLinea(texto);
    escribeLinea(texto, u"//A continuación se hace un inciso acerca de qué símbolos pertenecen a");
    escribeLinea(texto, u"//cada índice j (siendo la dimensión tipo [i][j]) de la tabla SLR detallada.");
    escribeLinea(texto);
    escribeTabla(texto, sumidero);
    escribeLinea(texto, barras);
    sumidero(texto);
}

std::u16string gramatica::textoInforme() const {
    std::u16string texto;
    escribeInforme([&](std::u16string_view pieza) { texto += pieza; });
    return texto;
}

void gramatica::GuardaInforme(const std::filesystem::path& carpeta) const {
    const auto piezas = [&](const SumideroDeTexto& sumidero) { escribeInforme(sumidero); };
    escribeTexto(carpeta / "informeGramatica.txt", piezas, Durabilidad::Normal);
}

// Conflicts ------------------------------------------------------------------------------------------------

std::u16string gramatica::problemasFila(std::int16_t fila) const {
    std::u16string texto;
    bool vacia = true;
    for (std::int16_t c = 1; c < columnasVigentes(); ++c) {
        if (tabla_.en(fila, c) == 0) continue;
        vacia = false;
        if (enConflicto(fila, c))
            escribeLinea(texto, u"Conflicto ", celdaTabla(fila, c), u" en el estado ", fila - 1,
                         u", símbolo ", encabezadoColumna(c), u".");
    }
    if (vacia)
        escribeLinea(texto, u"La fila ", fila - 1, u" de la tabla SLR correspondiente al estado ", fila - 1,
                     u" del automata no posee ni desplazamientos ni reducciones.");
    return texto;
}

// Row 2 holds the acceptance, the last column is not looked at.
std::u16string gramatica::textoProblemas() const {
    std::u16string texto;
    const auto filas =
        std::min<std::size_t>(estadosAutomata_.size(), static_cast<std::size_t>(tabla_.filas()));
    for (std::int16_t fila = 1; static_cast<std::size_t>(fila) <= filas; ++fila)
        if (fila != 2) texto += problemasFila(fila);
    if (texto.empty()) return u"La gramática carece de problema alguno.";
    std::u16string mensaje;
    escribeLinea(mensaje, u"Problemas detectados:");
    escribeLinea(mensaje);
    return mensaje + texto;
}

void gramatica::MuestraProblemas(Sistema& sistema) const {
    sistema.muestraMensaje({.texto = textoProblemas(), .titulo = u"Conflictos", .icono = Icono::Informacion});
}

} // namespace norvik
