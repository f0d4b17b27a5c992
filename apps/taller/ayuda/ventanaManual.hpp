// SPDX-License-Identifier: MIT

#pragma once

#include "tema.hpp"

#include <QLineEdit>
#include <QSplitter>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWidget>

namespace norvik::taller {

/// Pictures no wider than the page.
class PaginaManual final : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    QVariant loadResource(int clase, const QUrl& nombre) override;
};

/// The manual, which comes with the program: its headings, a page, and a field that looks for words.
class VentanaManual final : public QWidget {
    Q_OBJECT

public:
    explicit VentanaManual(QWidget* padre);

    /// Brings it to the front, at a place; one that it does not have is its beginning.
    void muestra(const Tema& tema);

    // For those who drive it from outside.
    QTextBrowser& pagina() { return pagina_; }
    QTreeWidget& indice() { return indice_; }
    QLineEdit& buscar() { return buscar_; }

private:
    void compone();
    void conecta();
    void llenaIndice();
    QTextBlock bloqueDe(const Tema& tema) const;
    void vaA(const QTextBlock& bloque);
    void sigueEnlace(const QUrl& enlace);
    void busca();

    QVBoxLayout columna_;
    QLineEdit buscar_;
    QSplitter partes_;
    QTreeWidget indice_;
    PaginaManual pagina_;
};

} // namespace norvik::taller
