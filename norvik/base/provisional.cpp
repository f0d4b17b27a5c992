// SPDX-License-Identifier: MIT

// Whoever makes a provisional file takes the first free name of a short row and holds a lock on the file for
// as long as it is open. The system drops a lock with its process: a file that can be locked is nobody's. So
// what a kill left behind is found with a few calls, however many files the folder has, and no number of a
// process, which another one may have by now, is asked for.
//
// A name is given and taken away only under the lock of the file that it names: the maker gives up a file
// that somebody else has locked first, and the cleaner heeds that the name still leads to what it has locked.
#include "norvik/base/provisional.hpp"

#include "norvik/base/escrituraEnSitio.hpp"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

constexpr int maximo = 1000;  // of one file at the same time
constexpr int habituales = 8; // where a save leaves some behind

// Some file systems know no locks: there everybody leaves what the others have alone.
enum class Cerrojo { Mio, Ajeno, NoHay };

Cerrojo echaCerrojo(const Descriptor& descriptor) {
    if (sinInterrupcion([&] { return flock(descriptor.numero(), LOCK_EX | LOCK_NB); }) == 0)
        return Cerrojo::Mio;
    return errno == EWOULDBLOCK ? Cerrojo::Ajeno : Cerrojo::NoHay;
}

bool sigueSiendo(const std::filesystem::path& nombre, const Descriptor& descriptor) {
    struct stat abierto {};
    struct stat nombrado {};
    return fstat(descriptor.numero(), &abierto) == 0 && lstat(nombre.c_str(), &nombrado) == 0 &&
           abierto.st_dev == nombrado.st_dev && abierto.st_ino == nombrado.st_ino;
}

bool haPerdidoSuNombre(const Descriptor& descriptor) {
    struct stat abierto {};
    return fstat(descriptor.numero(), &abierto) == 0 && abierto.st_nlink == 0;
}

/// A file system of another machine locks for one alone only what is open for writing.
Descriptor abreAbandonado(const std::filesystem::path& nombre) {
    constexpr int opciones = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const auto con = [&](int acceso) {
        return Descriptor(sinInterrupcion([&] { return open(nombre.c_str(), acceso | opciones); }));
    };
    Descriptor descriptor = con(O_RDWR);
    return descriptor.abierto() ? std::move(descriptor) : con(O_RDONLY);
}

Descriptor tomaSiEsDeNadie(const std::filesystem::path& nombre) {
    Descriptor descriptor = abreAbandonado(nombre);
    if (!descriptor.abierto() || echaCerrojo(descriptor) != Cerrojo::Mio || !sigueSiendo(nombre, descriptor))
        return Descriptor(-1);
    return descriptor;
}

} // namespace

NombresProvisionales::NombresProvisionales(std::filesystem::path carpeta, std::string_view principio,
                                           std::string_view final)
    : carpeta_(std::move(carpeta)), principio_(principio), final_(final) {}

std::filesystem::path NombresProvisionales::nombre(int numero) const {
    return carpeta_ / (principio_ + std::to_string(numero) + final_);
}

NombresProvisionales::Fichero NombresProvisionales::crea(mode_t modo) const {
    for (int numero = 0; numero < maximo; ++numero) {
        const std::filesystem::path candidato = nombre(numero);
        Descriptor descriptor(sinInterrupcion(
            [&] { return open(candidato.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo); }));
        if (!descriptor.abierto() && errno != EEXIST) break;
        if (descriptor.abierto() && echaCerrojo(descriptor) != Cerrojo::Ajeno &&
            !haPerdidoSuNombre(descriptor))
            return {candidato, std::move(descriptor)};
    }
    return {{}, Descriptor(-1)};
}

std::vector<NombresProvisionales::Fichero> NombresProvisionales::abandonados() const {
    return abandonados(maximo);
}

std::vector<NombresProvisionales::Fichero> NombresProvisionales::abandonados(int cuantos) const {
    std::vector<Fichero> abandonados;
    for (int numero = 0; numero < cuantos; ++numero) {
        const std::filesystem::path candidato = nombre(numero);
        Descriptor descriptor = tomaSiEsDeNadie(candidato);
        if (descriptor.abierto()) abandonados.push_back({candidato, std::move(descriptor)});
    }
    return abandonados;
}

void NombresProvisionales::quitaAbandonados() const {
    for (const Fichero& abandonado : abandonados(habituales)) unlink(abandonado.nombre.c_str());
}

} // namespace norvik::inline v0_2
