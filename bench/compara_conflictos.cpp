// SPDX-License-Identifier: MIT

// How conflicts are told, side by side with the counterexamples of bison: both commands, one after the other,
// on the grammars of pares/ambiguas.txt, on the examples, and on variants of the examples that were broken
// with a fixed seed; each with its lalr table. It prints a row of Markdown for each grammar: conflicts with
// one sentence of two trees, symbols of those sentences, and processor time of the whole process.
//
//   compara-conflictos NORVIK SOURCES FOLDER      (FOLDER is for files that it writes)
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/grammar/gramaticaLR.hpp"
#include "norvik/spec/datosDeLenguaje.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <utility>
#include <vector>

using namespace norvik;

namespace {

using Palabras = std::vector<std::string>;
struct Regla2 {
    std::string cabeza;
    Palabras cuerpo;
};
using Gramatica = std::vector<Regla2>;

Palabras parte(const std::string& texto) {
    std::istringstream flujo(texto);
    Palabras palabras;
    for (std::string palabra; flujo >> palabra;)
        if (palabra != "Ø") palabras.push_back(palabra);
    return palabras;
}

// «S -> a S | Ø; B -> b»
Gramatica lee(const std::string& texto) {
    Gramatica gramatica;
    std::istringstream reglas(texto);
    for (std::string regla; std::getline(reglas, regla, ';');) {
        const std::size_t flecha = regla.find("->");
        const std::string cabeza = parte(regla.substr(0, flecha)).front();
        std::istringstream cuerpos(regla.substr(flecha + 2));
        for (std::string cuerpo; std::getline(cuerpos, cuerpo, '|');)
            gramatica.push_back({cabeza, parte(cuerpo)});
    }
    return gramatica;
}

Gramatica deEjemplo(const std::filesystem::path& fichero) {
    const Compilacion compilacion = Lenguaje::deFichero(fichero);
    Gramatica gramatica;
    for (const Regla& regla : compilacion.lenguaje->datos().reglas.valores().reglas)
        gramatica.push_back({aUtf8(regla.cabeza), parte(aUtf8(regla.cuerpo))});
    return gramatica;
}

// One symbol is taken away, made the head of its rule, or the body is written under another head.
Gramatica rompe(Gramatica gramatica, std::mt19937& azar) {
    const auto hasta = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(azar);
    };
    while (true) {
        Regla2& regla = gramatica[hasta(gramatica.size())];
        if (regla.cuerpo.empty()) continue;
        const std::size_t sitio = hasta(regla.cuerpo.size());
        const std::size_t como = hasta(3);
        if (como == 0 && regla.cuerpo.size() > 1)
            regla.cuerpo.erase(regla.cuerpo.begin() + static_cast<std::ptrdiff_t>(sitio));
        else if (como == 1 && regla.cuerpo.size() > 1)
            regla.cuerpo[sitio] = regla.cabeza;
        else
            gramatica.push_back({gramatica[hasta(gramatica.size())].cabeza, regla.cuerpo});
        return gramatica;
    }
}

Palabras tokens(const Gramatica& gramatica) {
    std::set<std::string> cabezas;
    std::set<std::string> todos;
    for (const Regla2& regla : gramatica) cabezas.insert(regla.cabeza);
    for (const Regla2& regla : gramatica)
        for (const std::string& simbolo : regla.cuerpo)
            if (!cabezas.contains(simbolo)) todos.insert(simbolo);
    return {todos.begin(), todos.end()};
}

// Rules of one head together, in both forms.
Gramatica junta(const Gramatica& gramatica) {
    Gramatica juntas;
    std::set<std::string> hechas;
    for (const Regla2& primera : gramatica) {
        if (!hechas.insert(primera.cabeza).second) continue;
        std::ranges::copy_if(gramatica, std::back_inserter(juntas),
                             [&](const Regla2& regla) { return regla.cabeza == primera.cabeza; });
    }
    return juntas;
}

void escribeNorvik(const Gramatica& gramatica, const std::string& fichero) {
    std::ofstream salida(fichero);
    for (const std::string& token : tokens(gramatica))
        salida << "Token " << token << " = \"" << token << "\";\n";
    for (const Regla2& regla : gramatica) {
        salida << regla.cabeza << " ->";
        for (const std::string& simbolo : regla.cuerpo) salida << ' ' << simbolo;
        salida << (regla.cuerpo.empty() ? " Ø;\n" : ";\n");
    }
}

void escribeBison(const Gramatica& gramatica, const std::string& fichero) {
    std::ofstream salida(fichero);
    for (const std::string& token : tokens(gramatica)) salida << "%token t_" << token << "\n";
    salida << "%%\n";
    const Palabras suyos = tokens(gramatica);
    for (const Regla2& regla : gramatica) {
        salida << regla.cabeza << ":";
        for (const std::string& simbolo : regla.cuerpo)
            salida << (std::ranges::binary_search(suyos, simbolo) ? " t_" : " ") << simbolo;
        salida << (regla.cuerpo.empty() ? " %empty;\n" : ";\n");
    }
}

struct Medida {
    std::string texto;
    double milisegundos = 0;
};

Medida corre(const std::string& orden) {
    const auto gastado = [] {
        rusage uso{};
        getrusage(RUSAGE_CHILDREN, &uso);
        return static_cast<double>(uso.ru_utime.tv_sec + uso.ru_stime.tv_sec) * 1e3 +
               static_cast<double>(uso.ru_utime.tv_usec + uso.ru_stime.tv_usec) / 1e3;
    };
    const double antes = gastado();
    Medida medida;
    {
        const std::unique_ptr<FILE, int (*)(FILE*)> tubo(popen(orden.c_str(), "r"), pclose);
        std::array<char, 4096> trozo{};
        while (const std::size_t leidos = std::fread(trozo.data(), 1, trozo.size(), tubo.get()))
            medida.texto.append(trozo.data(), leidos);
    }
    medida.milisegundos = gastado() - antes;
    return medida;
}

// What one of them tells of a grammar: of each token, the lengths of the sentences with two trees; and
// whatever has none.
struct Cuento {
    std::map<std::string, std::vector<std::size_t>> largos;
    std::size_t ambiguas = 0;
    std::size_t otras = 0;

    void anota(const std::string& token, std::size_t largo) {
        largos[token].push_back(largo);
        ++ambiguas;
    }
    void ordena() {
        for (auto& [token, suyos] : largos) std::ranges::sort(suyos);
    }
};

std::size_t largoDe(const std::string& ejemplo) {
    return static_cast<std::size_t>(std::ranges::count_if(
        parte(ejemplo), [](const std::string& palabra) { return palabra != "•" && palabra != "$end"; }));
}

constexpr std::size_t sinLargo = 1'000'000;

// Of its report: «State N», then «... conflict on token X:» or «on tokens X, Y:», the items in question, and
// «Example: …» when both trees are of one, or «First example: …». Several items that shift one token are one
// cell of the table, of which the best example counts.
Cuento deBison(const std::string& texto) {
    using Celda = std::array<std::string, 3>; // state, token, rule that is kept out
    std::map<Celda, std::size_t> largos;      // 0: two sentences
    std::string estado;
    std::string regla;
    Palabras actuales;
    bool esDeReducciones = false;
    std::istringstream lineas(texto);
    for (std::string linea; std::getline(lineas, linea);) {
        if (linea.starts_with("State ")) estado = linea;
        const std::size_t sitio = linea.find("conflict on token");
        if (sitio != std::string::npos) {
            std::string lista = linea.substr(linea.find(' ', sitio + 12) + 1);
            std::ranges::replace(lista, ',', ' ');
            std::ranges::replace(lista, ':', ' ');
            actuales = parte(lista);
            for (std::string& token : actuales) token = token == "$end" ? "$" : token.substr(2);
            esDeReducciones = linea.find("reduce/reduce") != std::string::npos;
            regla.clear();
            continue;
        }
        if (actuales.empty()) continue;
        const std::size_t uno = linea.find("Example: ");
        const bool sonDos = linea.find("First example: ") != std::string::npos;
        if (uno == std::string::npos && !sonDos) {
            const Palabras palabras = parte(linea);
            if (!palabras.empty() && (regla.empty() || esDeReducciones)) regla = palabras.front();
            continue;
        }
        // One example for several tokens is one of the token that it has there.
        const Palabras palabras = parte(linea);
        const auto punto = std::ranges::find(palabras, "•");
        const bool tieneToken = punto != palabras.end() && punto + 1 != palabras.end();
        for (const std::string& token : actuales) {
            const bool esSuyo = actuales.size() == 1 || !tieneToken || *(punto + 1) == "t_" + token;
            const std::size_t largo = sonDos ? 0 : esSuyo ? largoDe(linea.substr(uno + 9)) : sinLargo;
            const auto [celda, nueva] = largos.try_emplace({estado, token, regla}, largo);
            if (!sonDos && !nueva && (celda->second == 0 || largo < celda->second)) celda->second = largo;
        }
        actuales.clear();
    }
    Cuento cuento;
    for (const auto& [celda, largo] : largos) {
        if (largo == 0)
            ++cuento.otras;
        else if (largo == sinLargo)
            ++cuento.ambiguas;
        else
            cuento.anota(celda[1], largo);
    }
    cuento.ordena();
    return cuento;
}

std::string campo(const std::string& texto, const std::string& clave, std::size_t desde, char hasta) {
    const std::size_t sitio = texto.find(clave, desde);
    if (sitio == std::string::npos) return {};
    const std::size_t inicio = sitio + clave.size();
    return texto.substr(inicio, texto.find(hasta, inicio) - inicio);
}

Cuento deNorvik(const std::string& texto) {
    const std::string clase = R"("clase":")";
    Cuento cuento;
    std::istringstream lineas(texto);
    for (std::string linea; std::getline(lineas, linea);) {
        for (std::size_t historia = linea.find(clase); historia != std::string::npos;
             historia = linea.find(clase, historia + 1)) {
            if (campo(linea, clase, historia, '"') != "ambigua") {
                ++cuento.otras;
                continue;
            }
            const std::string frase = campo(linea, R"("frase":[)", historia, ']');
            const auto simbolos = static_cast<std::size_t>(std::ranges::count(frase, '"')) / 2;
            cuento.anota(campo(linea, R"("simbolo":")", historia, '"'), simbolos);
        }
    }
    cuento.ordena();
    return cuento;
}

// How many sentences of one are longer than the other's for the same token, the shortest with the shortest.
std::size_t masLargas(const Cuento& unas, const Cuento& otras) {
    std::size_t cuantas = 0;
    for (const auto& [token, suyas] : unas.largos) {
        const auto sitio = otras.largos.find(token);
        if (sitio == otras.largos.end()) continue;
        for (std::size_t i = 0; i < std::min(suyas.size(), sitio->second.size()); ++i)
            if (suyas[i] > sitio->second[i]) ++cuantas;
    }
    return cuantas;
}

double decimas(double numero) {
    return std::floor(numero * 10) / 10;
}

class Comparacion {
public:
    Comparacion(std::string norvik, std::string carpeta)
        : norvik_(std::move(norvik)), carpeta_(std::move(carpeta)) {
        std::cout
            << "| grammar | norvik: one sentence | two | ms | bison: one sentence | two | ms | longer |\n"
               "|---|---|---|---|---|---|---|---|\n";
    }

    void compara(const std::string& nombre, const Gramatica& original) {
        const Gramatica gramatica = junta(original);
        const std::string suya = carpeta_ + "/" + nombre + ".nvk";
        const std::string otra = carpeta_ + "/" + nombre + ".y";
        escribeNorvik(gramatica, suya);
        escribeBison(gramatica, otra);
        const Medida una = corre(norvik_ + " revisa --metodo lalr --formato json " + suya + " 2>/dev/null");
        const std::string informe = carpeta_ + "/informe";
        const Medida dos =
            corre("bison -rcounterexamples --report-file=" + informe + " -o /dev/null " + otra + " 2>&1");
        const Cuento mio = deNorvik(una.texto);
        const Cuento suyo = deBison(leeBytes(informe));
        if (mio.ambiguas + mio.otras + suyo.ambiguas + suyo.otras == 0) return;
        fila(nombre, mio, una.milisegundos, suyo, dos.milisegundos, masLargas(mio, suyo));
        suma(mioTotal_, mio);
        suma(suyoTotal_, suyo);
        tiempos_[0] += una.milisegundos;
        tiempos_[1] += dos.milisegundos;
        masLargas_ += masLargas(mio, suyo);
    }
    void acaba() const { fila("all", mioTotal_, tiempos_[0], suyoTotal_, tiempos_[1], masLargas_); }

private:
    static void suma(Cuento& total, const Cuento& uno) {
        total.ambiguas += uno.ambiguas;
        total.otras += uno.otras;
    }
    static void fila(const std::string& nombre, const Cuento& mio, double mioMs, const Cuento& suyo,
                     double suyoMs, std::size_t largas) {
        std::cout << "| " << nombre << " | " << mio.ambiguas << " | " << mio.otras << " | " << decimas(mioMs)
                  << " | " << suyo.ambiguas << " | " << suyo.otras << " | " << decimas(suyoMs) << " | "
                  << largas << " |" << std::endl;
    }

    std::string norvik_;
    std::string carpeta_;
    Cuento mioTotal_;
    Cuento suyoTotal_;
    std::array<double, 2> tiempos_{};
    std::size_t masLargas_ = 0;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "compara-conflictos NORVIK SOURCES FOLDER\n";
        return 2;
    }
    const std::string fuentes = argv[2];
    Comparacion comparacion(argv[1], argv[3]);
    std::ifstream ambiguas(fuentes + "/bench/pares/ambiguas.txt");
    for (std::string linea; std::getline(ambiguas, linea);) {
        const std::size_t dos = linea.find(": ");
        if (linea.starts_with("#") || dos == std::string::npos) continue;
        comparacion.compara(linea.substr(0, dos), lee(linea.substr(dos + 2)));
    }
    std::mt19937 azar(2026);
    for (const std::string ejemplo : {"calculadora", "json", "configuracion", "consulta", "pascal", "c"}) {
        const auto fichero = std::filesystem::path(fuentes) / "ejemplos" / ejemplo / (ejemplo + ".nvk");
        const Gramatica gramatica = deEjemplo(fichero);
        comparacion.compara(ejemplo, gramatica);
        for (int i = 1; i <= 3; ++i)
            comparacion.compara(ejemplo + "-" + std::to_string(i), rompe(gramatica, azar));
    }
    comparacion.acaba();
    return 0;
}
