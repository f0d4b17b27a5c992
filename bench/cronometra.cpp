// SPDX-License-Identifier: MIT

// Runs commands in turn, many times over, and prints what each took: medians of wall and of processor time in
// milliseconds, and peak memory in KiB. Taking turns, the commands see the same machine, and since each round
// has an order of its own, no command is always the one that finds the caches full of a greater one's data.
// The processor's time is the fairer figure on a machine that has other work.
//
//   cronometra ROUNDS -- COMMAND ARGUMENT... -- COMMAND ARGUMENT... ...
//
// The output of the commands is thrown away; a command that fails ends the measurement with status 1.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <numeric>
#include <random>
#include <spawn.h>
#include <string_view>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Orden = std::vector<char*>; // ended by a null pointer

struct Medidas {
    std::vector<double> reloj;
    std::vector<double> procesador;
    long memoria = 0;
};

std::vector<Orden> ordenes(int argc, char** argv) {
    std::vector<Orden> todas;
    for (int i = 2; i < argc; i++) {
        if (std::string_view(argv[i]) == "--")
            todas.emplace_back();
        else if (!todas.empty())
            todas.back().push_back(argv[i]);
    }
    for (Orden& orden : todas) orden.push_back(nullptr);
    return todas;
}

double milisegundos(const timeval& tiempo) {
    return static_cast<double>(tiempo.tv_sec) * 1e3 + static_cast<double>(tiempo.tv_usec) / 1e3;
}

bool ejecuta(const Orden& orden, Medidas& medidas) {
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&acciones, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    const auto principio = std::chrono::steady_clock::now();
    pid_t proceso = 0;
    const int fallo = posix_spawnp(&proceso, orden[0], &acciones, nullptr, orden.data(), environ);
    posix_spawn_file_actions_destroy(&acciones);
    int estado = 0;
    rusage uso{};
    if (fallo != 0 || wait4(proceso, &estado, 0, &uso) != proceso) return false;
    const std::chrono::duration<double, std::milli> tiempo = std::chrono::steady_clock::now() - principio;
    medidas.reloj.push_back(tiempo.count());
    medidas.procesador.push_back(milisegundos(uso.ru_utime) + milisegundos(uso.ru_stime));
    medidas.memoria = std::max(medidas.memoria, uso.ru_maxrss);
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

double mediana(std::vector<double>& tiempos) {
    std::sort(tiempos.begin(), tiempos.end());
    return tiempos[tiempos.size() / 2];
}

void imprime(Medidas& medidas) {
    std::printf("%.3f %.3f %ld\n", mediana(medidas.reloj), mediana(medidas.procesador), medidas.memoria);
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<Orden> todas = ordenes(argc, argv);
    const int vueltas = argc > 1 ? std::atoi(argv[1]) : 0;
    const bool vacia = std::any_of(todas.begin(), todas.end(), [](const Orden& o) { return o.size() < 2; });
    if (vueltas < 1 || todas.empty() || vacia) {
        std::cerr << "cronometra ROUNDS -- COMMAND ARGUMENT... -- COMMAND ARGUMENT... ...\n";
        return 2;
    }
    std::vector<Medidas> medidas(todas.size());
    std::vector<std::size_t> turnos(todas.size());
    std::iota(turnos.begin(), turnos.end(), std::size_t{0});
    std::minstd_rand azar; // the same orders in each measurement
    for (int vuelta = 0; vuelta < vueltas; vuelta++) {
        std::shuffle(turnos.begin(), turnos.end(), azar);
        for (const std::size_t i : turnos) {
            if (ejecuta(todas[i], medidas[i])) continue;
            std::cerr << "cronometra: failed:";
            for (const char* trozo : todas[i]) std::cerr << ' ' << (trozo ? trozo : "\n");
            return 1;
        }
    }
    std::for_each(medidas.begin(), medidas.end(), imprime);
    return 0;
}
