// SPDX-License-Identifier: MIT

#include "graphviz.hpp"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace norvik::orden {

namespace {

using Reloj = std::chrono::steady_clock;

struct CierraFichero {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this is the owner
    void operator()(std::FILE* fichero) const { std::fclose(fichero); }
};
using Fichero = std::unique_ptr<std::FILE, CierraFichero>;

// The graph goes in by way of a file, so that nobody waits for the other.
Fichero enFichero(std::string_view texto) {
    Fichero fichero(std::tmpfile());
    const bool escrito = fichero &&
                         std::fwrite(texto.data(), 1, texto.size(), fichero.get()) == texto.size() &&
                         std::fflush(fichero.get()) == 0;
    if (!escrito || std::fseek(fichero.get(), 0, SEEK_SET) != 0) return nullptr;
    return fichero;
}

/// dot, reading from one file and writing to another.
class Proceso {
public:
    Proceso(std::FILE* entrada, std::FILE* salida) {
        posix_spawn_file_actions_t acciones{};
        posix_spawn_file_actions_init(&acciones);
        posix_spawn_file_actions_adddup2(&acciones, fileno(entrada), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&acciones, fileno(salida), STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&acciones, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        std::string orden = "dot";
        std::string opcion = "-Tsvg";
        const std::array<char*, 3> palabras{orden.data(), opcion.data(), nullptr};
        if (posix_spawnp(&hijo_, "dot", &acciones, nullptr, palabras.data(), environ) != 0) hijo_ = -1;
        posix_spawn_file_actions_destroy(&acciones);
    }
    Proceso(const Proceso&) = delete;
    Proceso& operator=(const Proceso&) = delete;
    ~Proceso() {
        if (hijo_ <= 0) return;
        kill(hijo_, SIGKILL);
        while (waitpid(hijo_, nullptr, 0) < 0 && errno == EINTR) {
        }
    }

    // False when it failed or took too long.
    bool acaba(std::chrono::seconds plazo) {
        const auto fin = Reloj::now() + plazo;
        for (int estado = 0; hijo_ > 0 && Reloj::now() < fin; poll(nullptr, 0, 5)) {
            if (waitpid(hijo_, &estado, WNOHANG) != hijo_) continue;
            hijo_ = -1;
            return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
        }
        return false;
    }

private:
    pid_t hijo_ = -1;
};

std::string todo(std::FILE* fichero) {
    std::string bytes;
    std::rewind(fichero);
    std::array<char, 65536> trozo{};
    while (const std::size_t leidos = std::fread(trozo.data(), 1, trozo.size(), fichero))
        bytes.append(trozo.data(), leidos);
    return bytes;
}

std::string cambiado(std::string_view texto, std::string_view viejo, std::string_view nuevo) {
    std::string otro;
    for (std::size_t desde = 0;;) {
        const std::size_t i = texto.find(viejo, desde);
        otro += texto.substr(desde, i - desde);
        if (i == std::string_view::npos) return otro;
        otro += nuevo;
        desde = i + viejo.size();
    }
}

} // namespace

std::optional<std::string> dibujaGrafo(std::string_view grafo) {
    constexpr std::chrono::seconds plazo{4}; // the page has its stories to tell, too
    const Fichero entrada = enFichero(grafo);
    const Fichero salida(std::tmpfile());
    if (!entrada || !salida || !Proceso(entrada.get(), salida.get()).acaba(plazo)) return std::nullopt;
    std::string svg = todo(salida.get());
    const std::size_t principio = svg.find("<svg"); // behind what only a file of its own begins with
    if (principio == std::string::npos) return std::nullopt;
    svg.erase(0, principio);
    svg = cambiado(svg, "<svg ", "<svg role=\"img\" aria-label=\"Autómata\" fill=\"currentColor\" ");
    svg = cambiado(svg, "stroke=\"black\"", "stroke=\"currentColor\"");
    return cambiado(svg, "fill=\"black\"", "fill=\"currentColor\"");
}

} // namespace norvik::orden
