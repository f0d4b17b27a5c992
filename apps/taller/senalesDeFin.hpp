// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace norvik::taller {

/// Turns the signals by which the system asks a program to end (SIGTERM, SIGINT, SIGHUP) into one of Qt. One
/// object at a time, which outlives the event loop; another signal while it is attended to ends the program
/// as ever.
class SenalesDeFin final : public QObject {
    Q_OBJECT

public:
    SenalesDeFin();

signals:
    void pedido(int senal);

private:
    void atiende();

    QSocketNotifier aviso_;
};

} // namespace norvik::taller
