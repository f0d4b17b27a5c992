// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QSettings>
#include <QString>

namespace norvik::taller {

inline const QString claveLenguajes = QStringLiteral("recientes/lenguajes");
inline const QString claveTextos = QStringLiteral("recientes/textos");
inline const QString claveFormularios = QStringLiteral("recientes/formularios");

/// A menu of the files of one kind that were last opened or saved, the last one first, kept in the settings.
class Recientes final : public QObject {
    Q_OBJECT

public:
    Recientes(QMenu& menu, QSettings& ajustes, QString clave);

    void anota(const QString& fichero);
    QStringList ficheros() const;

signals:
    void elegido(const QString& fichero);

private:
    void llenaMenu();

    QMenu& menu_;
    QSettings& ajustes_;
    QString clave_;
};

} // namespace norvik::taller
