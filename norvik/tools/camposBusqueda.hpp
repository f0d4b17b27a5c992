// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/control/buscador.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>

#include <initializer_list>

namespace norvik {

/// The fields that the find and the replace dialog share.
class CamposBusqueda final : public QWidget {
    Q_OBJECT

public:
    explicit CamposBusqueda(QWidget* padre);

    Peticion peticion() const;
    /// Fills the fields for a dialog that opens: the last search, in the first direction.
    void prepara();
    /// Lists what the process has searched so far; what is being written stays.
    void ponHistorial();
    /// One more list, below the text to search.
    void pon(QComboBox& lista, const QString& rotulo);
    /// The last one that the tab key comes to.
    QWidget& ultimo() { return check2_; }
    /// The text is about to be written.
    void enfoca() { combo1_.setFocus(Qt::TabFocusReason); }

signals:
    void textoCambiado(bool hay);

private:
    void dispone();
    void disponeAmbito();

    QComboBox combo1_{this};
    QComboBox combo2_{this};
    QCheckBox check1_{QStringLiteral("Sólo palabras completas"), this};
    QCheckBox check2_{QStringLiteral("Coincidir mayúsculas y minúsculas"), this};
    QGroupBox ambito_{QStringLiteral("Búsqueda"), this};
    QFormLayout filas_{this};
};

/// An editable list that completes nothing: a search is for what was written.
void hazEditable(QComboBox& lista, const char* nombre, const QString& accesible);
/// Puts texts in a list; what is being written in it stays.
void ponTextos(QComboBox& lista, const std::vector<std::u16string>& textos);
/// Fields and a column of buttons beside them, the first of which is the default one.
void dispone(QDialog& dialogo, CamposBusqueda& campos, std::initializer_list<QPushButton*> botones);

} // namespace norvik
