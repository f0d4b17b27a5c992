#include "norvik/base/ficheros.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/platform/sistema.hpp"
#include "norvik/report/escritorLineas.hpp"

#include <algorithm>

// The report on a grammar, as a file and as the parts that a window shows, and the list of conflicts. All of
// them are made of the same pieces.
namespace norvik {

namespace {

constexpr std::u16string_view sangria = u"    ";
constexpr std::u16string_view nota = u"(NOTA: El símbolo 'Ø' representa la cadena vacía)";
const std::u16string raya(48, u'-');
const std::u16string barras(110, u'/');

void escribeSeparador(EscritorLineas& salida) {
    salida.escribe(raya);
    salida.escribe();
}

} // namespace

// Rules and sets -------------------------------------------------------------------------------------------

void gramatica::escribeReglas(EscritorLineas& salida) const {
    salida.escribe(u"Informe sobre la gramática actual:");
    salida.escribe();
    salida.escribe();
    salida.escribe(u"Reglas de la Gramática:");
    salida.escribe();
    int i = 0;
    for (const Regla& regla : reglas_) salida.escribe(++i, u".\t", regla.cabeza, u" -> ", regla.cuerpo);
    salida.escribe();
    salida.escribe();
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
                                 EscritorLineas& salida) const {
    salida.escribe();
    salida.escribe(titulo);
    salida.escribe();
    for (const ConjuntoNumerado& conjunto : conjuntos)
        salida.escribe(nombre, u"(", partidas_.texto(conjunto.nombre), u") = {", listaDe(conjunto), u"}");
    salida.escribe();
    salida.escribe();
}

void gramatica::escribePredict(EscritorLineas& salida) const {
    salida.escribe(u"Conjuntos Predict:");
    salida.escribe();
    std::int16_t k = 0;
    for (const ConjuntoNumerado& conjunto : conjuntos_.predict) {
        const auto& [cabeza, cuerpo, elementos] = reglaEn(++k);
        salida.escribe(u"PREDICT(", cabeza, u" -> ", cuerpo, u")  =  {", listaDe(conjunto), u"}");
    }
    salida.escribe();
    salida.escribe();
}

std::u16string gramatica::textoInformeGeneral() const {
    return textoDeLineas([&](EscritorLineas& salida) {
        escribeReglas(salida);
        escribeConjuntos(u"Conjuntos Primeros:", u"PRIMEROS", conjuntos_.primeros, salida);
        escribeConjuntos(u"Conjuntos Siguientes:", u"SIGUIENTES", conjuntos_.siguientes, salida);
        escribePredict(salida);
        salida.escribe(u"Símbolos terminales: ", terminales_.toStringConjunto());
        salida.escribe(u"Símbolos no terminales: ", variables_.toStringConjunto());
        salida.escribe(nota);
    });
}

// Automaton ------------------------------------------------------------------------------------------------

std::u16string gramatica::textoAutomata() const {
    return textoDeLineas([&](EscritorLineas& salida) {
        for (const estadoAutomata& estado : estadosAutomata_) escribeEstado(estado, salida);
    });
}

void gramatica::escribeEstado(const estadoAutomata& estado, EscritorLineas& salida) const {
    const std::u16string_view inicial = reglas_.front().cabeza;
    salida.escribe(u"Estado ", estado.getNumEstado(), u":");
    salida.escribe();
    if (estado.getNumEstado() == 0) salida.escribe(sangria, inicial, u"' -> .", inicial);
    if (estado.getNumEstado() == 1) salida.escribe(sangria, inicial, u"' -> ", inicial, u".");
    for (const auto [numero, punto] : estado.items()) {
        const Regla& regla = reglaEn(numero);
        const std::u16string cuerpo =
            partidas_.esVacia(numero) ? std::u16string(u".") : dameReglaString(regla.cuerpo, punto);
        salida.escribe(sangria, regla.cabeza, u" -> ", cuerpo);
    }
    escribeTransiciones(estado, salida);
    escribeSeparador(salida);
}

void gramatica::escribeTransiciones(const estadoAutomata& estado, EscritorLineas& salida) const {
    const auto haySalida = [](std::int16_t adyacente) { return adyacente != estadoAutomata::sinTransicion; };
    if (estado.getNumEstado() != 0 && std::ranges::none_of(estado.adyacentes(), haySalida)) return;
    salida.escribe(u"Transiciones:");
    if (estado.getNumEstado() == 0) salida.escribe(sangria, reglas_.front().cabeza, u" -> ", 1);
    std::vector<bool> vistos(partidas_.numSimbolos());
    for (std::size_t i = 0; i < estado.items().size(); ++i) {
        if (!haySalida(estado.adyacentes()[i])) continue;
        const auto [regla, punto] = estado.items()[i];
        const Simbolo siguiente = partidas_.cuerpo(regla)[static_cast<std::size_t>(punto)];
        if (vistos[static_cast<std::size_t>(siguiente)]) continue;
        vistos[static_cast<std::size_t>(siguiente)] = true;
        salida.escribe(sangria, partidas_.texto(siguiente), u" -> ", estado.adyacentes()[i]);
    }
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

void gramatica::escribeEntrada(std::int16_t fila, std::int16_t columna, EscritorLineas& salida) const {
    if (enConflicto(fila, columna))
        salida.escribe(u"tablaSLR[", fila - 1, u"][", columna - 1, u"]= ", accion(fila, columna), u";");
    else
        salida.escribe(sangria, u"tablaSLR[", fila - 1, u"][", columna - 1, u"] = ", tabla_.en(fila, columna),
                       u";");
}

void gramatica::escribeTabla(EscritorLineas& salida) const {
    const std::int16_t total = simbolos_.totalElementos();
    salida.escribe(u"//Simbolos:");
    for (std::int16_t c = 1; c <= total; ++c)
        salida.escribe(u"columna ", c - 1, u" = ", encabezadoColumna(c));
    salida.escribe();
    salida.escribe(u"//Tabla: (Desplazamientos: números positivos. Reducciones: números negativos)");
    if (const int c = columnas().inicial; c >= 0) salida.escribe(sangria, u"tablaSLR[0][", c, u"] = 1");
    if (const int c = columnas().fin; c >= 0) salida.escribe(sangria, u"tablaSLR[1][", c, u"] = ACEPTAR");
    for (std::int16_t f = 1; f <= filasVigentes(); ++f)
        tabla_.paraCadaEntrada(f, columnasVigentes(), [&](std::int16_t columna, std::int16_t /*valor*/) {
            escribeEntrada(f, columna, salida);
        });
}

// The whole file -------------------------------------------------------------------------------------------

void gramatica::escribeInforme(const SumideroDeTexto& sumidero) const {
    EscritorLineas salida(sumidero);
    escribeReglas(salida);
    escribeSeparador(salida);
    escribeConjuntos(u"Conjuntos Primeros:", u"PRIMEROS", conjuntos_.primeros, salida);
    escribeSeparador(salida);
    escribeConjuntos(u"Conjuntos Siguientes:", u"SIGUIENTES", conjuntos_.siguientes, salida);
    escribeSeparador(salida);
    escribePredict(salida);
    salida.escribe(nota);
    salida.escribe();
    salida.escribe(barras);
    salida.escribe();
    salida.escribe(u"Especificación del automata:");
    salida.escribe();
    salida.escribe();
    for (const estadoAutomata& estado : estadosAutomata_) escribeEstado(estado, salida);
    salida.escribe(barras);
    salida.escribe();
    salida.escribe();
    salida.escribe(u"//Tabla SLR:");
    salida.escribe();
    salida.escribe(u"//A continuación se hace un inciso acerca de qué símbolos pertenecen a");
    salida.escribe(u"//cada índice j (siendo la dimensión tipo [i][j]) de la tabla SLR detallada.");
    salida.escribe();
    escribeTabla(salida);
    salida.escribe(barras);
    salida.acaba();
}

std::u16string gramatica::textoInforme() const {
    return deUnaPieza([&](const SumideroDeTexto& sumidero) { escribeInforme(sumidero); });
}

void gramatica::GuardaInforme(const std::filesystem::path& carpeta) const {
    const auto piezas = [&](const SumideroDeTexto& sumidero) { escribeInforme(sumidero); };
    escribeTexto(carpeta / "informeGramatica.txt", piezas, Durabilidad::Normal);
}

// Conflicts ------------------------------------------------------------------------------------------------

void gramatica::escribeProblemas(std::int16_t fila, EscritorLineas& salida) const {
    bool vacia = true;
    for (std::int16_t c = 1; c < columnasVigentes(); ++c) {
        if (tabla_.en(fila, c) == 0) continue;
        vacia = false;
        if (enConflicto(fila, c))
            salida.escribe(u"Conflicto ", celdaTabla(fila, c), u" en el estado ", fila - 1, u", símbolo ",
                           encabezadoColumna(c), u".");
    }
    if (vacia)
        salida.escribe(u"La fila ", fila - 1, u" de la tabla SLR correspondiente al estado ", fila - 1,
                       u" del automata no posee ni desplazamientos ni reducciones.");
}

// Row 2 holds the acceptance, the last column is not looked at.
std::u16string gramatica::textoProblemas() const {
    const std::u16string problemas = textoDeLineas([&](EscritorLineas& salida) {
        const auto filas =
            std::min<std::size_t>(estadosAutomata_.size(), static_cast<std::size_t>(tabla_.filas()));
        for (std::int16_t fila = 1; static_cast<std::size_t>(fila) <= filas; ++fila)
            if (fila != 2) escribeProblemas(fila, salida);
    });
    if (problemas.empty()) return u"La gramática carece de problema alguno.";
    return std::u16string(u"Problemas detectados:").append(saltoDeLinea).append(saltoDeLinea) + problemas;
}

void gramatica::MuestraProblemas(Sistema& sistema) const {
    sistema.muestraMensaje({.texto = textoProblemas(), .titulo = u"Conflictos", .icono = Icono::Informacion});
}

} // namespace norvik
