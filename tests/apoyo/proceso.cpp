#include "apoyo/proceso.hpp"

#include "apoyo/carpetaTemporal.hpp"

#include <array>
#include <fcntl.h>
#include <pty.h>
#include <spawn.h>
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
        switch (destino) {
        case Destino::Captura:
            suyo_ = open(fichero.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
            break;
        case Destino::DiscoLleno:
            suyo_ = open("/dev/full", O_WRONLY | O_CLOEXEC);
            break;
        case Destino::LectorQueSeFue:
            if (pipe2(extremos.data(), O_CLOEXEC) != 0) throw std::runtime_error("pipe2");
            close(extremos[0]);
            suyo_ = extremos[1];
            break;
        case Destino::Terminal:
            if (openpty(&nuestro_, &suyo_, nullptr, nullptr, nullptr) != 0)
                throw std::runtime_error("openpty");
            sinConversion();
            break;
        case Destino::Cerrado:
            break;
        }
    }
    Flujo(const Flujo&) = delete;
    Flujo& operator=(const Flujo&) = delete;
    ~Flujo() {
        close(suyo_);
        close(nuestro_);
    }

    void conecta(posix_spawn_file_actions_t& acciones, int numero) const {
        if (destino_ == Destino::Cerrado)
            posix_spawn_file_actions_addclose(&acciones, numero);
        else
            posix_spawn_file_actions_adddup2(&acciones, suyo_, numero);
    }

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
    void sinConversion() const {
        termios modo{};
        tcgetattr(suyo_, &modo);
        cfmakeraw(&modo);
        tcsetattr(suyo_, TCSANOW, &modo);
    }

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

int espera(pid_t proceso) {
    int estado = 0;
    waitpid(proceso, &estado, 0);
    return WIFSIGNALED(estado) ? -WTERMSIG(estado) : WEXITSTATUS(estado);
}

} // namespace

Resultado ejecuta(const std::vector<std::string>& argumentos, const Entorno& entorno) {
    const CarpetaTemporal carpeta;
    const int entrada = open(carpeta.pon("entrada", entorno.entrada).c_str(), O_RDONLY | O_CLOEXEC);
    Flujo salida(entorno.salida, carpeta / "salida");
    Flujo errores(entorno.errores, carpeta / "errores");
    posix_spawn_file_actions_t acciones{};
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_adddup2(&acciones, entrada, STDIN_FILENO);
    salida.conecta(acciones, STDOUT_FILENO);
    errores.conecta(acciones, STDERR_FILENO);

    std::vector<std::string> palabras{NORVIK_COMMAND};
    palabras.insert(palabras.end(), argumentos.begin(), argumentos.end());
    std::vector<std::string> variables = entorno.variables;
    pid_t proceso = 0;
    const int error = posix_spawn(&proceso, NORVIK_COMMAND, &acciones, nullptr, punteros(palabras).data(),
                                  variables.empty() ? environ : punteros(variables).data());
    posix_spawn_file_actions_destroy(&acciones);
    close(entrada);
    if (error != 0) throw std::runtime_error("posix_spawn");
    const int estado = espera(proceso);
    return {salida.contenido(), errores.contenido(), estado};
}

} // namespace norvik::apoyo
