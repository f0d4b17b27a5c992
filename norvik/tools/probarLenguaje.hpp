// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/tools/ventanaEditor.hpp"

#include <string_view>

namespace norvik {

/// The test editor: a text is written, coloured and parsed with the language that a specification describes.
class ProbarLenguaje final : public VentanaEditor {
    Q_OBJECT

public:
    explicit ProbarLenguaje(SistemaQt& sistema, QWidget* padre = nullptr);

    /// Shows the shared test text, coloured. A failure to colour it is raised with the text in place. From
    /// now on, closing the window gives the text back.
    void carga();

protected:
    void alCerrar() override;

private:
    void test();

    bool cargada_ = false;
};

} // namespace norvik
