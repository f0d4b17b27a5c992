// SPDX-License-Identifier: MIT

// A file that has other names, whose owner could not be kept, or whose folder takes no new file is written
// where it is. The new content is made in memory first, so that it is whole; the old one is copied beside
// the file, or where temporary files are, and stays there until the new one is in its place: a failure puts
// it back, and after a sudden end it can be found, until the file has been saved again.
#include "norvik/base/escrituraEnSitio.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/descriptor.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/provisional.hpp"
#include "norvik/base/texto.hpp"

#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace norvik::inline v0_2 {

namespace {

namespace fs = std::filesystem;

// Where copies of a file's old content may be: beside it, or where temporary files are. People find them by
// the file's name, and one file's are not another's.
std::vector<NombresProvisionales> copiasDe(const fs::path& fichero) {
    constexpr std::size_t largoMaximo = 200;
    std::error_code error;
    const std::string ruta = fs::absolute(fichero, error).native();
    const std::string principio = "." + fichero.filename().native().substr(0, largoMaximo) + ".norvik-" +
                                  std::to_string(std::hash<std::string>()(ruta)) + "-";
    fs::path temporal = fs::temp_directory_path(error);
    if (error) temporal = "/tmp"; // TMPDIR names no folder
    return {{fichero.parent_path(), principio, ""}, {temporal, principio, ""}};
}

// The old content, kept on the disk for as long as it may be needed.
class Copia {
public:
    static std::optional<Copia> de(const fs::path& fichero, const std::string& bytes) {
        for (const NombresProvisionales& nombres : copiasDe(fichero)) {
            Copia copia(nombres.crea(0600));
            const Descriptor& descriptor = copia.fichero_.descriptor;
            if (descriptor.abierto() && escribeTodo(descriptor.numero(), bytes) &&
                sinInterrupcion([&] { return fsync(descriptor.numero()); }) == 0)
                return copia;
        }
        return std::nullopt;
    }
    Copia(Copia&&) noexcept = default;
    Copia& operator=(Copia&&) = delete;
    Copia(const Copia&) = delete;
    Copia& operator=(const Copia&) = delete;
    ~Copia() {
        const int codigo = errno; // the caller still reads why it failed
        if (fichero_.descriptor.abierto() && !queda_) unlink(fichero_.nombre.c_str());
        errno = codigo;
    }

    // It stays, under this name, until the file has been saved again.
    const fs::path& queda() {
        queda_ = true;
        return fichero_.nombre;
    }

private:
    explicit Copia(NombresProvisionales::Fichero fichero) : fichero_(std::move(fichero)) {}

    NombresProvisionales::Fichero fichero_;
    bool queda_ = false;
};

std::optional<std::string> enMemoria(const Llenado& llenado) {
    const Descriptor memoria(memfd_create("norvik", MFD_CLOEXEC));
    if (!memoria.abierto() || !llenado(memoria.numero())) return std::nullopt;
    const off_t largo = lseek(memoria.numero(), 0, SEEK_END);
    if (largo < 0) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(largo), '\0');
    const auto leidos =
        sinInterrupcion([&] { return pread(memoria.numero(), bytes.data(), bytes.size(), 0); });
    if (leidos != static_cast<ssize_t>(bytes.size())) return std::nullopt;
    return bytes;
}

bool pon(int descriptor, std::string_view bytes, Durabilidad durabilidad) {
    return lseek(descriptor, 0, SEEK_SET) == 0 && escribeTodo(descriptor, bytes) &&
           sinInterrupcion([&] { return ftruncate(descriptor, static_cast<off_t>(bytes.size())); }) == 0 &&
           (durabilidad == Durabilidad::Normal || sinInterrupcion([&] { return fsync(descriptor); }) == 0);
}

} // namespace

bool escribeEnSuSitio(const fs::path& fichero, const Llenado& llenado, Durabilidad durabilidad) {
    const auto nuevo = enMemoria(llenado);
    if (!nuevo) return false;
    const std::string antiguo = leeBytes(fichero);
    const Descriptor descriptor(
        sinInterrupcion([&] { return open(fichero.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC); }));
    if (!descriptor.abierto()) return false;
    auto copia = Copia::de(fichero, antiguo);
    if (!copia) return false;
    if (pon(descriptor.numero(), *nuevo, durabilidad) && descriptor.pruebaCierre()) {
        for (const NombresProvisionales& nombres : copiasDe(fichero)) nombres.quitaAbandonados();
        return true;
    }
    const int codigo = errno;
    if (pon(descriptor.numero(), antiguo, durabilidad)) {
        errno = codigo;
        return false;
    }
    throw ErrorDeFichero(u"No se puede escribir «" + decodifica(fichero.native()) + u"»: " +
                         causaDelSistema(codigo) + u". Lo que tenía está en «" +
                         decodifica(copia->queda().native()) + u"»");
}

} // namespace norvik::inline v0_2
