// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPainterPath>
#include <QPointF>
#include <QProcess>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTimer>

namespace norvik::taller {

/// A directed graph to be laid out. Its nodes are boxes of a size that is given. A dense one is laid out
/// without its labels, and with less effort.
struct Grafo {
    struct Caja {
        int numero = 0;
        QSizeF medida;
    };
    struct Flecha {
        int desde = 0;
        int hasta = 0;
        QString rotulo;
    };
    QList<Caja> cajas;
    QList<Flecha> flechas;
    double letra = 12; ///< height of the labels' letters

    /// With more arrows than these, a label on each takes Graphviz most of its time, and nobody can tell
    /// whose it is.
    static constexpr qsizetype maximoRotulos = 100;
    bool esDenso() const { return flechas.size() > maximoRotulos; }
};

/// Where everything of it stands, in the units of the boxes, `y` downwards.
struct GrafoColocado {
    struct Flecha {
        QPainterPath linea;
        QPointF punta;   ///< where the arrow ends
        QPointF llegada; ///< where its line does, before the arrow
        QPointF rotulo;  ///< middle of the label
        int numero = 0;  ///< its place in the graph
    };
    QHash<int, QPointF> cajas; ///< middle of each, by number
    QList<Flecha> flechas;
};

/// Lays graphs out with Graphviz, in a process of its own that is ended when it takes too long, or when
/// another graph is wanted.
class ColocadorGrafos final : public QObject {
    Q_OBJECT

public:
    /// `programa` is looked for where the system keeps its programs.
    explicit ColocadorGrafos(QString programa = QStringLiteral("dot"), QObject* padre = nullptr);
    ColocadorGrafos(const ColocadorGrafos&) = delete;
    ColocadorGrafos& operator=(const ColocadorGrafos&) = delete;
    ~ColocadorGrafos() override;

    void coloca(const Grafo& grafo);
    /// Nobody hears any more of what was wanted.
    void para();

signals:
    void colocado(const norvik::taller::GrafoColocado& grafo);
    /// There is no picture; the words say why.
    void fallo(const QString& motivo);

private:
    void acaba(bool bien);

    QString programa_;
    QProcess proceso_;
    QTimer plazo_;
    bool espera_ = false;
};

/// What Graphviz says of a graph in JSON; nothing in it when it is something else.
GrafoColocado leeColocacion(const QByteArray& json);

} // namespace norvik::taller
