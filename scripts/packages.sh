# What the project needs of Debian 12, and how it is installed. Read by the other scripts.

# To build the library and the workbench, and to run it.
build_packages=(cmake ninja-build g++ python3 qt6-base-dev libqt6sql6-sqlite libqcustomplot-dev libgl-dev
                libvulkan-dev fonts-dejavu-core)
# To check and test them as well.
test_packages=("${build_packages[@]}" clang clang-format clang-tidy libclang-rt-14-dev libgtest-dev libgmock-dev
               libbenchmark-dev)

# Installs those of the named packages that are missing; needs root or sudo only then.
install_packages() {
    local missing=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ "${#missing[@]}" -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "${0##*/}: needs root or sudo to install: ${missing[*]}" >&2; exit 1; }
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}
