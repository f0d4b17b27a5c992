// SPDX-License-Identifier: MIT

#include "recuperacion.hpp"

#include "norvik/base/causas.hpp"
#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"

#include <QFileInfo>
#include <QLocale>

#include <cerrno>
#include <chrono>
#include <utility>

namespace norvik::taller {

namespace fs = std::filesystem;

namespace {

fs::path copiaDeCerrojo(const fs::path& cerrojo) {
    return fs::path(cerrojo).replace_extension(".copia");
}

void borra(const fs::path& fichero) {
    std::error_code faltaba;
    fs::remove(fichero, faltaba);
}

/// The copy first: a lock alone is taken for one without a copy.
void borraAmbos(const fs::path& cerrojo) {
    borra(copiaDeCerrojo(cerrojo));
    borra(cerrojo);
}

QString preguntaDe(const CopiaTaller& copia, const fs::path& fichero) {
    const QString cuando = QLocale(QLocale::Spanish)
                               .toString(QFileInfo(deRuta(fichero)).lastModified(),
                                         QStringLiteral("d 'de' MMMM 'a las' H:mm:ss"));
    return QStringLiteral(
               "El taller acabó sin que se pudiera guardar lo escrito. Se conserva lo que había el "
               "%1:\n\n    %2\n\n¿Quiere recuperarlo?")
        .arg(cuando, copia.titulos().join(QStringLiteral("\n    ")));
}

} // namespace

Recuperacion::Recuperacion(VentanaPrincipal& ventana, Dialogos& dialogos, fs::path carpeta)
    : ventana_(ventana), dialogos_(dialogos), carpeta_(std::move(carpeta)),
      cerrojos_(carpeta_, "taller-", ".cerrojo") {
    using namespace std::chrono_literals;
    espera_.setSingleShot(true);
    espera_.setInterval(1s);
    connect(&espera_, &QTimer::timeout, this, &Recuperacion::copia);
    connect(&ventana_, &VentanaPrincipal::cambiado, this, &Recuperacion::pideCopia);
}

Recuperacion::~Recuperacion() {
    if (!conserva_) sinFallos([this] { olvida(); });
}

// ---- the copy of this workbench

/// It is not put off by keys that follow. Of what was saved there is nothing to recover, not for a moment: it
/// would be older than the file.
void Recuperacion::pideCopia() {
    if (cerrojo_ && !ventana_.hayCambios())
        copia();
    else if (!espera_.isActive())
        espera_.start();
}

bool Recuperacion::copia() {
    espera_.stop();
    const std::u16string fallo = falloDe([this] {
        const CopiaTaller copia = ventana_.copia();
        if (copia.vacia())
            olvida();
        else
            escribe(copia);
    });
    if (fallo.empty()) return true;
    sinFallos([&] {
        ventana_.avisa(QStringLiteral("No hay copia de recuperación de lo escrito. ") + aQString(fallo));
    });
    return false;
}

void Recuperacion::conserva() {
    copia();
    conserva_ = true;
}

/// Somebody may have taken the folder away.
bool Recuperacion::tieneCerrojo() const {
    std::error_code falta;
    return cerrojo_ && fs::exists(cerrojo_->nombre, falta);
}

void Recuperacion::escribe(const CopiaTaller& copia) {
    if (!tieneCerrojo()) {
        std::error_code error;
        fs::create_directories(carpeta_, error);
        if (!error) fs::permissions(carpeta_, fs::perms::owner_all, error); // it is nobody else's
        cerrojo_.reset();
        cerrojo_.emplace(cerrojos_.crea(0600));
    }
    if (!cerrojo_->descriptor.abierto()) {
        const int codigo = errno;
        cerrojo_.reset();
        throw ErrorDeFichero(u"No se puede escribir en «" + deRuta(carpeta_).toStdU16String() + u"»: " +
                             std::u16string(causaDelSistema(codigo)));
    }
    escribeBytes(copiaDeCerrojo(cerrojo_->nombre), bytesDe(copia), Durabilidad::Normal);
}

void Recuperacion::olvida() {
    if (!cerrojo_) return;
    borraAmbos(cerrojo_->nombre);
    cerrojo_.reset();
}

// ---- those that were left

void Recuperacion::ofrece() {
    for (const auto& abandonado : cerrojos_.abandonados()) ofrece(abandonado.nombre);
}

/// They stay until what they have is in the copy of this workbench.
void Recuperacion::ofrece(const fs::path& cerrojo) {
    const fs::path fichero = copiaDeCerrojo(cerrojo);
    std::error_code desconocido;
    bool sobra = !fs::exists(fichero, desconocido) && !desconocido;
    if (!sobra) ventana_.ordena([&] { sobra = recupera(fichero); });
    if (sobra) borraAmbos(cerrojo);
}

/// One that cannot be read is put where it is not offered again.
CopiaTaller Recuperacion::lee(const fs::path& fichero) {
    const std::string bytes = leeBytes(fichero);
    try {
        return copiaDe(bytes);
    } catch (const NoCoincidenLosTipos& dano) {
        const fs::path aparte = fs::path(fichero).replace_extension(".rota");
        fs::rename(fichero, aparte);
        throw NoCoincidenLosTipos(dano.texto() + u": se deja aparte, en «" + deRuta(aparte).toStdU16String() +
                                  u"»");
    }
}

bool Recuperacion::recupera(const fs::path& fichero) {
    const CopiaTaller suya = lee(fichero);
    switch (dialogos_.pregunta(preguntaDe(suya, fichero), QStringLiteral("&Recuperar"),
                               QStringLiteral("&Descartar"))) {
    case Destino::Guardar:
        return ventana_.repone(suya) && copia();
    case Destino::Descartar:
        return true;
    case Destino::Cancelar:
        return false;
    }
    return false;
}

} // namespace norvik::taller
