// SPDX-License-Identifier: MIT

#include "apoyo/proceso.hpp"

#include "apoyo/carpetaTemporal.hpp"

#include <array>
#include <fcntl.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace norvik::apoyo {

namespace {

/// One stream of the process: a descriptor for it, and what arrived there afterwards.
class Flujo {
public:
    Flujo(Destino destino, const std::filesystem::path& fichero) : destino_(destino), fichero_(fichero) {
        std::array<int, 2> extremos{-1, -1};
        termios modo{};
        cfmakeraw(&modo);
        if (destino == Destino::Captura)
            suyo_ = open(fichero.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        else if (destino == Destino::DiscoLleno)
            suyo_ = open("/dev/full", O_WRONLY | O_CLOEXEC);
        else if (destino == Destino::Terminal)
            openpty(&nuestro_, &suyo_, nullptr, &modo, nullptr);
        else if (destino == Destino::LectorQueSeFue && pipe2(extremos.data(), O_CLOEXEC) == 0) {
            close(extremos[0]);
            suyo_ = extremos[1];
        }
        if (suyo_ < 0 && destino != Destino::Cerrado) throw std::runtime_error("Flujo");
    }
    Flujo(const Flujo&) = delete;
    Flujo& operator=(const Flujo&) = delete;
    ~Flujo() {
        close(suyo_);
        close(nuestro_);
    }

    void conecta(int numero) const { suyo_ < 0 ? close(numero) : dup2(suyo_, numero); }

    // A terminal holds a few thousand characters by itself: enough for the tests that use one.
    std::string contenido() {
        if (destino_ == Destino::Captura) return bytesDe(fichero_);
        if (destino_ != Destino::Terminal) return {};
        std::string texto;
        std::array<char, 4096> trozo{};
        fcntl(nuestro_, F_SETFL, O_NONBLOCK);
        for (ssize_t n = 0; (n = read(nuestro_, trozo.data(), trozo.size())) > 0;)
            texto.append(trozo.data(), static_cast<std::size_t>(n));
        return texto;
    }

private:
    Destino destino_;
    std::filesystem::path fichero_;
    int suyo_ = -1;
    int nuestro_ = -1;
};

std::vector<char*> punteros(std::vector<std::string>& textos) {
    std::vector<char*> resultado;
    resultado.reserve(textos.size() + 1);
    for (std::string& texto : textos) resultado.push_back(texto.data());
    resultado.push_back(nullptr);
    return resultado;
}

} // namespace

Resultado ejecuta(const std::vector<std::string>& argumentos, const Entorno& entorno) {
    const CarpetaTemporal carpeta;
    const int entrada = open(carpeta.pon("entrada", entorno.entrada).c_str(), O_RDONLY | O_CLOEXEC);
    Flujo salida(entorno.salida, carpeta / "salida");
    Flujo errores(entorno.errores, carpeta / "errores");
    std::vector<std::string> palabras{NORVIK_COMMAND};
    palabras.insert(palabras.end(), argumentos.begin(), argumentos.end());
    std::vector<std::string> variables = entorno.variables;
    const std::vector<char*> argv = punteros(palabras);
    const std::vector<char*> envp = punteros(variables);
    const pid_t proceso = fork();
    if (proceso == 0) {
        dup2(entrada, STDIN_FILENO);
        salida.conecta(STDOUT_FILENO);
        errores.conecta(STDERR_FILENO);
        execve(NORVIK_COMMAND, argv.data(), variables.empty() ? environ : envp.data());
        _exit(127);
    }
    close(entrada);
    int estado = 0;
    waitpid(proceso, &estado, 0);
    estado = WIFSIGNALED(estado) ? -WTERMSIG(estado) : WEXITSTATUS(estado);
    return {salida.contenido(), errores.contenido(), estado};
}

} // namespace norvik::apoyo
