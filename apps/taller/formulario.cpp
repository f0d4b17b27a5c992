// SPDX-License-Identifier: MIT

#include "formulario.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <QFileInfo>

#include <algorithm>

namespace norvik::taller {

Formulario::Formulario(SistemaQt& sistema, QWidget* padre)
    : QSplitter(Qt::Vertical, padre), sistema_(sistema) {
    setChildrenCollapsible(false);
    setAccessibleName(QStringLiteral("Formulario"));
    vacia();
}

ElementoFormulario& Formulario::anade(const QString& nombre) {
    const QString libre = nombre.isEmpty() ? nombreLibre() : nombre;
    elementos_.push_back(std::make_unique<ElementoFormulario>(libre, sistema_, this));
    ElementoFormulario& nuevo = *elementos_.back();
    nuevo.norvik().Colorear(true);
    nuevo.norvik().MarcarErrores(true);
    nuevo.ponModo(modo_);
    conecta(nuevo);
    addWidget(&nuevo);
    muestraTitulos();
    activa(nuevo);
    ponModificado(true);
    return nuevo;
}

void Formulario::conecta(ElementoFormulario& elemento) {
    connect(&elemento, &ElementoFormulario::activado, this,
            [this, &elemento] { sinFallos([&] { activa(elemento); }); });
    connect(&elemento, &ElementoFormulario::pidePropiedades, this, [this, &elemento] {
        sinFallos([&] {
            activa(elemento);
            emit pidePropiedades();
        });
    });
    connect(&elemento, &ElementoFormulario::otroTexto, this, &Formulario::otroTexto);
    connect(&elemento, &ElementoFormulario::otroLugar, this, &Formulario::otroLugar);
    connect(&elemento, &ElementoFormulario::fallo, this, &Formulario::fallo);
    connect(&elemento, &ElementoFormulario::aviso, this, &Formulario::aviso);
    connect(&elemento, &ElementoFormulario::otraPropiedad, this, [this] { ponModificado(true); });
}

QString Formulario::nombreLibre() const {
    for (int i = 1;; ++i) {
        QString nombre = QStringLiteral("Norvik%1").arg(i);
        if (std::none_of(elementos_.begin(), elementos_.end(),
                         [&](const auto& e) { return e->nombre() == nombre; }))
            return nombre;
    }
}

void Formulario::activa(ElementoFormulario& elemento) {
    for (std::size_t i = 0; i < elementos_.size(); ++i) {
        elementos_[i]->ponSeleccionado(elementos_[i].get() == &elemento);
        if (elementos_[i].get() == &elemento) activo_ = i;
    }
    elemento.setFocus();
    emit otroActivo();
}

void Formulario::ponModo(Modo modo) {
    modo_ = modo;
    for (const auto& e : elementos_) e->ponModo(modo);
    muestraTitulos();
    activo().setFocus();
    emit cambiado();
}

/// All together have what a single one may have; each of their characters takes about twelve bytes.
bool Formulario::estaLleno() const {
    constexpr std::size_t maximo = std::size_t{8} << 20;
    std::size_t total = 0;
    for (const auto& e : elementos_) total += e->patrones();
    return total >= maximo;
}

void Formulario::muestraTitulos() {
    for (const auto& e : elementos_) e->muestraTitulo(elementos_.size() > 1 || modo_ == Modo::Disenio);
}

/// Takes the first ones away.
void Formulario::retira(std::size_t cuantos) {
    elementos_.erase(elementos_.begin(), elementos_.begin() + static_cast<std::ptrdiff_t>(cuantos));
    muestraTitulos();
    activa(*elementos_.front());
    fichero_.olvida();
    otros_ = {};
}

void Formulario::quitaActivo() {
    if (elementos_.size() < 2) return;
    const auto quitado = std::move(elementos_[activo_]);
    elementos_.erase(elementos_.begin() + static_cast<std::ptrdiff_t>(activo_));
    activo_ = 0; // before events reach the form
    muestraTitulos();
    activa(*elementos_.front());
    ponModificado(true);
}

void Formulario::vacia() {
    const std::size_t antes = elementos_.size();
    anade(QStringLiteral("Norvik1"));
    retira(antes);
    ponModificado(false);
}

// ---- what is saved

QString Formulario::titulo() const {
    return fichero().isEmpty() ? QStringLiteral("Formulario sin título")
                               : QFileInfo(fichero()).completeBaseName();
}

void Formulario::ponModificado(bool modificado) {
    modificado_ = modificado;
    if (!modificado)
        for (const auto& e : elementos_) e->anotaGuardado();
    emit cambiado();
}

QStringList Formulario::abre(const QString& fichero) {
    const QString huella = huellaDe(fichero); // of what is read next, or of what was there before
    const QString ruta = QFileInfo(fichero).absoluteFilePath(); // the path may be the form's own
    QStringList avisos = pon(leeFormulario(fichero));
    fichero_.pon(ruta, huella);
    ponModificado(false);
    return avisos;
}

QStringList Formulario::pon(const FormularioGuardado& formulario) {
    const std::size_t antes = elementos_.size();
    anade(formulario.elementos);
    retira(antes);
    QStringList avisos = llena(formulario.elementos);
    otros_ = formulario.otros;
    return avisos;
}

/// All of them or, raising what one of them raised, none.
void Formulario::anade(const std::vector<ElementoGuardado>& guardados) {
    const std::size_t antes = elementos_.size();
    const bool modificado = modificado_;
    try {
        for (std::size_t i = 0; i < guardados.size(); ++i)
            restaura(anade(guardados[i].nombre), guardados[i], i);
    } catch (...) {
        activa(*elementos_.front());
        elementos_.resize(antes);
        muestraTitulos();
        ponModificado(modificado);
        throw;
    }
}

void Formulario::restaura(ElementoFormulario& elemento, const ElementoGuardado& guardado, std::size_t lugar) {
    try {
        elemento.restaura(guardado);
    } catch (const ErrorNorvik& error) {
        throw NoCoincidenLosTipos(QStringLiteral("Controles[%1].Bolsa: %2")
                                      .arg(lugar)
                                      .arg(aQString(error.texto()))
                                      .toStdU16String());
    }
}

/// Opens texts and languages of the controls. Who cancels one language gives up those that are left.
QStringList Formulario::llena(const std::vector<ElementoGuardado>& guardados) {
    QStringList avisos;
    const auto intenta = [&](const auto& accion) {
        const std::u16string fallo = falloDe(accion);
        if (!fallo.empty()) avisos += aQString(fallo);
    };
    bool cancelada = false;
    const auto prepara = [&](ElementoFormulario& elemento) {
        if (elemento.faltaLenguaje() && estaLleno()) {
            avisos += elemento.nombre() +
                      QStringLiteral(": su lenguaje no se ha cargado, porque los patrones de los anteriores "
                                     "ocupan demasiado. Se carga cuando se analiza con él");
            return;
        }
        try {
            const std::u16string error = elemento.preparaLenguaje();
            if (!error.empty()) avisos += elemento.nombre() + QStringLiteral(": ") + aQString(error);
        } catch (const OperacionCancelada&) {
            cancelada = true;
            throw;
        }
    };
    for (std::size_t i = 0; i < guardados.size(); ++i) {
        ElementoFormulario& elemento = *elementos_[i];
        if (!guardados[i].modulo.isEmpty()) intenta([&] { elemento.ponModulo(guardados[i].modulo); });
        if (!cancelada) intenta([&] { prepara(elemento); });
        if (!guardados[i].texto.isEmpty()) intenta([&] { elemento.abreTexto(guardados[i].texto); });
    }
    return avisos;
}

void Formulario::guarda(const QString& fichero) {
    FormularioGuardado formulario{{}, otros_};
    for (const auto& e : elementos_) formulario.elementos.push_back(e->guardado());
    const QByteArray json = enJson(formulario, QFileInfo(fichero).absoluteDir());
    fichero_.escribe(fichero, {json.data(), static_cast<std::size_t>(json.size())});
    ponModificado(false);
}

bool Formulario::hayCambios() const {
    return modificado_ || std::any_of(elementos_.begin(), elementos_.end(),
                                      [](const auto& e) { return e->textoModificado(); });
}

EstadoFormulario Formulario::estado() const {
    EstadoFormulario estado{{{}, otros_}, fichero_.ruta(), fichero_.huella(), modificado_, {}};
    for (const auto& e : elementos_) {
        estado.guardado.elementos.push_back(e->guardado());
        estado.guardado.elementos.back().texto.clear();
        estado.textos.push_back(e->documento().estado());
    }
    return estado;
}

QStringList Formulario::repone(const EstadoFormulario& estado) {
    QStringList avisos = pon(estado.guardado);
    fichero_.pon(estado.fichero, estado.huella);
    for (std::size_t i = 0; i < elementos_.size(); ++i)
        elementos_[i]->documento().repone(estado.textos.at(i));
    ponModificado(estado.modificado);
    return avisos;
}

} // namespace norvik::taller
