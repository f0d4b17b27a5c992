// The control's text as a whole: emptying, loading, saving and printing it.

#include "norvik/base/errores.hpp"
#include "norvik/base/ficheros.hpp"
#include "norvik/base/texto.hpp"
#include "norvik/control/norvik.hpp"

namespace norvik {

void Norvik::BorraTodo() {
    PasosFirmes paso;
    paso([this] { caja_.ponTexto({}); });
    caja_.ponColorSeleccion(0);
    paso([this] { InicializaUndosYRedos(); });
    paso.acaba();
}

bool Norvik::CargarFichero(const std::filesystem::path& nomFichero) {
    BorraTodo();
    const std::u16string texto = leeTexto(nomFichero);
    const TextoOculto oculto(colocacion_);
    PasosFirmes paso;
    paso([&] { caja_.ponTexto(texto); });
    paso([this] { ColoreaTodo(); });
    paso.acaba();
    return true;
}

bool Norvik::SalvarFichero(const std::filesystem::path& nomFichero) {
    try {
        escribeTexto(nomFichero, std::u16string(caja_.texto()).append(saltoDeLinea), Durabilidad::EnDisco);
        return true;
    } catch (const ErrorNorvik&) {
        return false;
    }
}

void Norvik::Imprimir() {
    try {
        sistema_.imprime(caja_.texto());
    } catch (const ErrorNorvik& error) {
        sistema_.muestraMensaje({error.texto(), {}, Icono::Ninguno, Botones::Aceptar});
    }
}

} // namespace norvik
