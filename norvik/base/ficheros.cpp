// SPDX-License-Identifier: MIT

// Whole files, read and written at once.
//
// A file is written under a name of its own in the same folder and renamed over its place: the rename is the
// only step that others see, and it either happens or does not. The bytes reach the disk before the rename
// and the folder's entry after it when that is asked for. Where that is not possible, or would part a file
// from its other names, it is written over (escrituraEnSitio).

#include "norvik/base/ficheros.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/codificacion.hpp"
#include "norvik/base/descriptor.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/escrituraEnSitio.hpp"
#include "norvik/base/provisional.hpp"
#include "norvik/base/texto.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <functional>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace norvik::inline v0_2 {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void falla(std::u16string_view accion, std::u16string_view nombre, std::u16string_view causa) {
    std::u16string texto(u"No se puede ");
    texto.append(accion).append(u" ").append(nombre).append(u": ").append(causa);
    throw ErrorDeFichero(texto);
}

std::u16string entreComillas(const fs::path& fichero) {
    return u"«" + decodifica(fichero.native()) + u"»";
}

// A missing file is no obstacle to writing one: what is missing then is its folder.
[[noreturn]] void fallaEscritura(const fs::path& fichero, int codigo) {
    falla(u"escribir", entreComillas(fichero),
          codigo == ENOENT ? u"la carpeta no existe" : causaDelSistema(codigo));
}

// The system would take a name up to its first NUL, and so another file.
bool tieneNombreImposible(const fs::path& fichero) {
    return fichero.native().find('\0') != std::string::npos;
}

Descriptor abre(const fs::path& fichero) {
    if (tieneNombreImposible(fichero)) falla(u"leer", entreComillas(fichero), causaDelSistema(EINVAL));
    const int numero =
        sinInterrupcion([&] { return open(fichero.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC); });
    if (numero < 0) falla(u"leer", entreComillas(fichero), causaDelSistema(errno));
    return Descriptor(numero);
}

// Appends some bytes more; false at the end.
bool leeMas(int descriptor, std::u16string_view nombre, std::string& bytes) {
    std::array<char, 32768> trozo; // not cleared: most files are short
    for (;;) {
        const ssize_t leidos = read(descriptor, trozo.data(), trozo.size());
        if (leidos < 0 && errno == EINTR) continue;
        if (leidos < 0) falla(u"leer", nombre, causaDelSistema(errno));
        bytes.append(trozo.data(), static_cast<std::size_t>(leidos));
        return leidos != 0;
    }
}

void compruebaTamanio(std::size_t bytes, std::u16string_view nombre) {
    if (bytes > maximoDeFichero) falla(u"leer", nombre, causaDelSistema(EFBIG));
}

std::string leeTodo(int descriptor, std::u16string_view nombre) {
    std::string bytes;
    while (leeMas(descriptor, nombre, bytes)) compruebaTamanio(bytes.size(), nombre);
    return bytes;
}

// The file that a chain of links leads to, which need not exist; nothing, with the cause in errno, when that
// cannot be known.
std::optional<fs::path> sigueEnlaces(fs::path fichero) {
    constexpr int maximo = 40;
    std::error_code error;
    for (int i = 0; i < maximo; ++i) {
        const auto estado = fs::symlink_status(fichero, error);
        const bool esEnlace = fs::is_symlink(estado);
        if (!esEnlace && fs::status_known(estado)) return fichero;
        const fs::path destino = esEnlace ? fs::read_symlink(fichero, error) : fs::path();
        if (error) {
            errno = error.value();
            return std::nullopt;
        }
        fichero = fichero.parent_path() / destino;
    }
    errno = ELOOP;
    return std::nullopt;
}

// The attributes of a file, lists of access among them. What the system alone gives, or does not know here,
// is no loss.
bool copiaAtributos(const fs::path& origen, int destino) {
    ssize_t largo = listxattr(origen.c_str(), nullptr, 0);
    if (largo < 0) return errno == ENOTSUP || errno == ENOSYS;
    std::string nombres(static_cast<std::size_t>(largo), '\0');
    if (largo > 0) largo = listxattr(origen.c_str(), nombres.data(), nombres.size());
    if (largo < 0) return false;
    nombres.resize(static_cast<std::size_t>(largo));
    for (std::size_t i = 0; i < nombres.size(); i = nombres.find('\0', i) + 1) {
        const char* const nombre = &nombres[i];
        std::string valor(65536, '\0');
        const ssize_t leidos = getxattr(origen.c_str(), nombre, valor.data(), valor.size());
        if (leidos >= 0 && fsetxattr(destino, nombre, valor.data(), static_cast<std::size_t>(leidos), 0) == 0)
            continue;
        const std::string_view clase(nombre);
        if (!clase.starts_with("security.") && !clase.starts_with("trusted.")) return false;
    }
    return true;
}

// A folder may give each new file a list of access of its own, which a wider mode would open to those named.
bool quitaListaHeredada(int fichero) {
    return fremovexattr(fichero, "system.posix_acl_access") == 0 || errno == ENODATA || errno == ENOTSUP ||
           errno == ENOSYS;
}

// Only the superuser gives files away, so that whoever writes another's file as one of its group becomes its
// owner, and the group stays. What is right already is not asked for: not every system can set it.
bool ponDuenios(int fichero, const struct stat& antiguo) {
    struct stat nuevo {};
    if (fstat(fichero, &nuevo) != 0) return false;
    const bool esDelGrupo = nuevo.st_gid == antiguo.st_gid;
    if (esDelGrupo && nuevo.st_uid == antiguo.st_uid) return true;
    if (fchown(fichero, antiguo.st_uid, antiguo.st_gid) == 0) return true;
    constexpr auto elMismo = std::numeric_limits<uid_t>::max();
    return errno == EPERM && (esDelGrupo || fchown(fichero, elMismo, antiguo.st_gid) == 0);
}

fs::path carpetaDe(const fs::path& fichero) {
    return fichero.has_parent_path() ? fichero.parent_path() : fs::path(".");
}

// However long the file's own name is.
NombresProvisionales provisionalesDe(const fs::path& destino) {
    return {destino.parent_path(),
            ".norvik-" + std::to_string(std::hash<std::string>()(destino.filename().native())) + "-", ".tmp"};
}

// A new file in the folder of another one; it disappears unless it takes that one's place.
class FicheroProvisional {
public:
    FicheroProvisional(fs::path destino, mode_t modo)
        : destino_(std::move(destino)), fichero_(provisionalesDe(destino_).crea(modo)) {}
    FicheroProvisional(const FicheroProvisional&) = delete;
    FicheroProvisional& operator=(const FicheroProvisional&) = delete;
    ~FicheroProvisional() {
        const int codigo = errno; // the caller still reads why it failed
        if (creado() && !enSuPuesto_) unlink(fichero_.nombre.c_str());
        errno = codigo;
    }

    bool creado() const { return fichero_.descriptor.abierto(); }

    // Makes it look like the old one; false when that cannot be.
    bool pareceA(const struct stat& antiguo) const {
        const int numero = fichero_.descriptor.numero();
        return ponDuenios(numero, antiguo) && quitaListaHeredada(numero) &&
               fchmod(numero, antiguo.st_mode & 07777U) == 0 && copiaAtributos(destino_, numero);
    }

    // It stays open, and so locked, until it has its place.
    bool llena(const Llenado& llenado, Durabilidad durabilidad) const {
        const int numero = fichero_.descriptor.numero();
        if (!llenado(numero)) return false;
        if (durabilidad == Durabilidad::EnDisco && sinInterrupcion([&] { return fsync(numero); }) != 0)
            return false;
        return fichero_.descriptor.pruebaCierre();
    }

    bool ocupaSuPuesto() {
        enSuPuesto_ = rename(fichero_.nombre.c_str(), destino_.c_str()) == 0;
        return enSuPuesto_;
    }
    // Its name too reaches the disk, with all else of its file system.
    bool vuelcaSistema() const {
        return sinInterrupcion([&] { return syncfs(fichero_.descriptor.numero()); }) == 0;
    }

private:
    fs::path destino_;
    NombresProvisionales::Fichero fichero_;
    bool enSuPuesto_ = false;
};

// Some file systems have no way to flush a folder, and say so.
bool vuelcaCarpeta(const Descriptor& carpeta) {
    return sinInterrupcion([&] { return fsync(carpeta.numero()); }) == 0 || errno == EINVAL;
}

// No new file may take the place: the old one can still be written over.
bool noHaySitio() {
    return errno == EACCES || errno == EPERM || errno == EROFS || errno == EBUSY;
}

bool reemplaza(const fs::path& destino, const Llenado& llenado, const struct stat* antiguo,
               Durabilidad durabilidad) {
    const auto enSuSitio = [&] {
        return antiguo != nullptr && noHaySitio() && escribeEnSuSitio(destino, llenado, durabilidad);
    };
    provisionalesDe(destino).quitaAbandonados();
    FicheroProvisional provisional(destino, antiguo == nullptr ? 0666 : 0600); // nobody opens it meanwhile
    if (!provisional.creado()) return enSuSitio();
    if (antiguo != nullptr && !provisional.pareceA(*antiguo))
        return escribeEnSuSitio(destino, llenado, durabilidad);
    if (!provisional.llena(llenado, durabilidad)) return false;
    if (durabilidad == Durabilidad::Normal) return provisional.ocupaSuPuesto() || enSuSitio();
    const Descriptor carpeta(sinInterrupcion(
        [&] { return open(carpetaDe(destino).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!carpeta.abierto() && errno != EACCES) return false; // it may be one to write in but not to read
    if (!provisional.ocupaSuPuesto()) return enSuSitio();
    if (!(carpeta.abierto() ? vuelcaCarpeta(carpeta) : provisional.vuelcaSistema()))
        falla(u"asegurar en el disco", entreComillas(destino),
              causaDelSistema(errno) + u". El contenido nuevo ya está en su sitio");
    return true;
}

bool escribeDirecto(const fs::path& destino, const Llenado& llenado) {
    Descriptor descriptor(
        sinInterrupcion([&] { return open(destino.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC); }));
    return descriptor.abierto() && llenado(descriptor.numero()) && descriptor.cierra();
}

bool escribeRegular(const fs::path& fichero, const Llenado& llenado, const struct stat* antiguo,
                    Durabilidad durabilidad) {
    const auto destino = sigueEnlaces(fichero);
    if (!destino) return false;
    const bool tieneMasNombres = antiguo != nullptr && antiguo->st_nlink > 1;
    return tieneMasNombres ? escribeEnSuSitio(*destino, llenado, durabilidad)
                           : reemplaza(*destino, llenado, antiguo, durabilidad);
}

bool escribe(const fs::path& fichero, const Llenado& llenado, Durabilidad durabilidad) {
    struct stat antiguo {};
    if (stat(fichero.c_str(), &antiguo) != 0)
        return errno == ENOENT && escribeRegular(fichero, llenado, nullptr, durabilidad);
    if (S_ISDIR(antiguo.st_mode)) {
        errno = EISDIR;
        return false;
    }
    if (!S_ISREG(antiguo.st_mode)) return escribeDirecto(fichero, llenado);
    // The rename would ask for the folder's permission alone.
    return faccessat(AT_FDCWD, fichero.c_str(), W_OK, AT_EACCESS) == 0 &&
           escribeRegular(fichero, llenado, &antiguo, durabilidad);
}

bool guardado(const fs::path& fichero, const Llenado& llenado, Durabilidad durabilidad) {
    if (!tieneNombreImposible(fichero)) return escribe(fichero, llenado, durabilidad);
    errno = EINVAL;
    return false;
}

// False when a write fails, or when the text turns out not to fit the encoding: then `cabe` tells.
bool escribeWindows1252(int descriptor, const TextoPorPiezas& piezas, bool& cabe) {
    CodificadorWindows1252 codificador;
    bool escrito = true;
    piezas([&](std::u16string_view pieza) {
        if (!escrito || !cabe) return;
        const auto bytes = codificador.codifica(pieza);
        cabe = bytes.has_value();
        escrito = cabe && escribeTodo(descriptor, *bytes);
    });
    cabe = cabe && codificador.seLeeIgual();
    return escrito && cabe;
}

// What was written to a device or a pipe cannot be taken back.
bool sePuedeRepetir(const fs::path& fichero) {
    std::error_code error;
    return !fs::exists(fichero, error) || fs::is_regular_file(fichero, error);
}

} // namespace

std::string leeBytes(const fs::path& fichero) {
    const Descriptor descriptor = abre(fichero);
    return leeTodo(descriptor.numero(), entreComillas(fichero));
}

std::string leeEntradaEstandar() {
    return leeTodo(STDIN_FILENO, u"la entrada estándar");
}

std::u16string leeTexto(const fs::path& fichero) {
    return normalizaLineas(decodifica(leeBytes(fichero)));
}

TextoPorTrozos::TextoPorTrozos(const fs::path& fichero)
    : nombre_(entreComillas(fichero)), descriptor_(new Descriptor(abre(fichero))) {
    if (lseek(descriptor_->numero(), 0, SEEK_SET) != 0) { // a pipe gives its bytes but once
        entero_ = decodifica(leeTodo(descriptor_->numero(), nombre_));
        return;
    }
    struct stat estado {};
    if (fstat(descriptor_->numero(), &estado) == 0 && S_ISREG(estado.st_mode))
        compruebaTamanio(static_cast<std::size_t>(estado.st_size), nombre_);
    for (std::string trozo = bytes(); esUtf8_ && !trozo.empty(); trozo = bytes()) esUtf8_ = esUtf8(trozo);
    lseek(descriptor_->numero(), 0, SEEK_SET);
    resto_.clear();
    leidos_ = 0;
}

TextoPorTrozos::~TextoPorTrozos() = default;

// Up to the last byte that is a character by itself in every encoding, so that none is cut.
std::string TextoPorTrozos::bytes() {
    const auto esAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    std::string trozo = std::exchange(resto_, {});
    while (leeMas(descriptor_->numero(), nombre_, trozo)) {
        const auto fin = std::find_if(trozo.rbegin(), trozo.rend(), esAscii).base();
        compruebaTamanio(leidos_ + trozo.size(), nombre_);
        if (fin == trozo.begin()) continue;
        resto_.assign(fin, trozo.end());
        trozo.erase(fin, trozo.end());
        leidos_ += trozo.size();
        return trozo;
    }
    return trozo;
}

std::u16string TextoPorTrozos::siguiente() {
    if (!entero_.empty()) return std::exchange(entero_, {});
    const std::string trozo = bytes();
    const bool primero = std::exchange(primero_, false);
    if (!esUtf8_) return desdeWindows1252(trozo);
    return primero ? decodifica(trozo) : desdeUtf8(trozo).value_or(u"");
}

void escribeBytes(const fs::path& fichero, std::string_view bytes, Durabilidad durabilidad) {
    const auto llenado = [&](int descriptor) { return escribeTodo(descriptor, bytes); };
    if (!guardado(fichero, llenado, durabilidad)) fallaEscritura(fichero, errno);
}

void escribeTexto(const fs::path& fichero, std::u16string_view texto, Durabilidad durabilidad) {
    escribeBytes(fichero, codifica(texto), durabilidad);
}

std::u16string deUnaPieza(const TextoPorPiezas& piezas) {
    std::u16string texto;
    piezas([&](std::u16string_view pieza) { texto += pieza; });
    return texto;
}

// Most texts fit Windows-1252: that is tried first, and what it wrote is not kept when the text does not.
void escribeTexto(const fs::path& fichero, const TextoPorPiezas& piezas, Durabilidad durabilidad) {
    if (sePuedeRepetir(fichero)) {
        bool cabe = true;
        const auto llenado = [&](int descriptor) { return escribeWindows1252(descriptor, piezas, cabe); };
        if (guardado(fichero, llenado, durabilidad)) return;
        if (cabe) fallaEscritura(fichero, errno);
    }
    escribeTexto(fichero, deUnaPieza(piezas), durabilidad);
}

} // namespace norvik::inline v0_2
