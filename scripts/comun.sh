# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034
# Shared by the scripts: packages of Debian 12, and where things are. To be sourced.

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

paquetes_base=(g++ cmake ninja-build pkg-config rapidjson-dev libcli11-dev libgtest-dev)
paquetes_qt=(qt6-base-dev libqt6opengl6-dev)
paquetes_disenador=(qt6-tools-dev)
paquetes_referencia=(doxygen)
paquetes_debian=(debhelper dpkg-dev fakeroot librsvg2-bin lintian)

# Installs what is missing, and asks the network for nothing when nothing is.
instala() {
    local faltan=() paquete como=()
    for paquete in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$paquete" 2>/dev/null) == installed ]] || faltan+=("$paquete")
    done
    ((${#faltan[@]})) || return 0
    [[ $(id -u) == 0 ]] || como=(sudo)
    "${como[@]}" apt-get -qq update
    "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends "${faltan[@]}"
}

# Configures a preset, with options, to be built whole: a folder is compiled as one file.
configura() {
    cmake --preset "$1" -DCMAKE_UNITY_BUILD=ON "${@:2}" >/dev/null
}

# Configures and builds a preset, or some targets of it.
construye() {
    local preset=$1
    shift
    configura "$preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
