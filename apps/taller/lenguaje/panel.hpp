// SPDX-License-Identifier: MIT

#pragma once

#include "eleccion.hpp"
#include "estudio.hpp"
#include "marco.hpp"

#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/platform/qt/fallos.hpp"

#include <QDockWidget>
#include <QEvent>
#include <QString>
#include <QTimer>

#include <memory>

namespace norvik::taller {

/// A panel of the language window: shows something of a study. Nothing that is raised leaves its slots: they
/// do their work in `protege`.
class Panel : public QDockWidget {
    Q_OBJECT

public:
    /// Another study to show. It is kept as long as it is shown; the panels' one is always the same version.
    virtual void ponEstudio(std::shared_ptr<const Estudio> estudio) = 0;
    /// Something of the study was chosen elsewhere: shows it when it can, and tells nobody of it.
    virtual void selecciona(const Eleccion& /*eleccion*/) {}
    /// It has something to show of a specification that does not compile, too.
    virtual bool muestraLoQueNoCompila() const { return false; }
    /// What it shows is of an earlier version of the texts, or of theirs again.
    void ponAtrasado(bool atrasado);
    const QString& titulo() const { return titulo_; }

signals:
    /// The person chose something here.
    void elegido(const norvik::taller::Eleccion& eleccion);
    /// The person wants to go there, and to write there.
    void ido(const norvik::taller::Eleccion& eleccion);
    /// The person wants a repair of one of the texts of the study.
    void arreglado(norvik::taller::Lado lado, const norvik::Arreglo& arreglo);
    void fallo(const QString& texto);

protected:
    /// `nombre` is what the window's state knows it by.
    Panel(const QString& nombre, const QString& titulo, QWidget* padre);

    /// What it consists of.
    void ponDentro(QWidget& dentro) { marco_.pon(dentro); }
    /// The person sees it.
    bool seVe() const { return seVe_; }
    /// The person sees it now, or does not any more.
    virtual void alVerse() {}
    /// What was laid out with the letters of before is to be laid out again.
    virtual void alCambiarLetra() {}
    /// It works on the version that it was given, and shows the one before: if that takes a while, its title
    /// says so.
    void ponTrabajando(bool trabajando);

    void changeEvent(QEvent* evento) override;

    template <typename Orden>
    void protege(const Orden& orden) {
        if (const auto motivo = falloDe(orden); !motivo.empty()) emit fallo(aQString(motivo));
    }

private:
    void actualizaTitulo();

    QString titulo_;
    Marco marco_{this};
    QTimer espera_; ///< until work takes long enough to be told
    bool seVe_ = false;
    bool atrasado_ = false;
    bool trabajando_ = false;
};

} // namespace norvik::taller
