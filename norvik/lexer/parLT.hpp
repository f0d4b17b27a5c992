// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace norvik::inline v0_2 {

/// Un lexema y el nombre de su token, como los devuelven los lectores.
class parLT {
public:
    parLT() = default;
    parLT(std::u16string lexema, std::u16string token)
        : lexema_(std::move(lexema)), token_(std::move(token)) {}

    const std::u16string& GetLexema() const { return lexema_; }
    const std::u16string& GetToken() const { return token_; }
    void SetLexema(std::u16string_view cadena) { lexema_ = cadena; }
    void setToken(std::u16string_view cadena) { token_ = cadena; }

private:
    std::u16string lexema_;
    std::u16string token_;
};

} // namespace norvik::inline v0_2
