// SPDX-License-Identifier: MIT

// A handler of a signal may do next to nothing: it writes a byte into a pipe, and the event loop reads it.

#include "senalesDeFin.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace norvik::taller {

namespace {

std::array<int, 2> tubo = {-1, -1}; // where a handler finds it

void anota(int senal) {
    const int antes = errno;
    const auto byte = static_cast<char>(senal);
    [[maybe_unused]] const ssize_t escrito = write(tubo[1], &byte, 1);
    errno = antes;
}

int lectura() {
    if (tubo[0] < 0 && pipe2(tubo.data(), O_CLOEXEC | O_NONBLOCK) != 0) tubo = {-1, -1};
    return tubo[0];
}

} // namespace

SenalesDeFin::SenalesDeFin() : aviso_(lectura(), QSocketNotifier::Read) {
    if (tubo[0] < 0) return; // the signals end the program
    connect(&aviso_, &QSocketNotifier::activated, this, &SenalesDeFin::atiende);
    struct sigaction accion {};
    accion.sa_handler = anota; // NOLINT: the system's own union
    accion.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int senal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction antes {};
        sigaction(senal, nullptr, &antes);
        if (antes.sa_handler != SIG_IGN) sigaction(senal, &accion, nullptr); // NOLINT: it was to be ignored
    }
}

void SenalesDeFin::atiende() {
    char byte = 0;
    if (read(tubo[0], &byte, 1) == 1) emit pedido(byte);
}

} // namespace norvik::taller
