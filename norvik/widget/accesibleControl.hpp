// SPDX-License-Identifier: MIT

#pragma once

namespace norvik {

/// Screen readers find the text and the border with its signs in a control, and none of the elements that
/// only draw it or take the focus for a moment.
void simplificaParaLectores();

} // namespace norvik
