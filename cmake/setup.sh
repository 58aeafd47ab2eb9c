# Sourced by ./run, ./test and benchmarks/run: the packages that they need, and how a build directory is set
# up. The caller has changed into the root of the checkout.

# uic_packages <purpose...>: the Debian packages that each purpose needs, one a line.
uic_packages()
{
    local purpose
    for purpose in "$@"; do
        case $purpose in
            build)
                echo g++ cmake ninja-build qtbase5-dev qtbase5-private-dev qttools5-dev qttools5-dev-tools
                echo qtdeclarative5-dev libqt5x11extras5-dev libxcb1-dev libgoogle-glog-dev ;;
            unit)
                echo dbus-daemon fonts-dejavu-core libgl1-mesa-dri qml-module-qtquick2 \
                    libqt5svg5 qml-module-qtquick-window2 ;;
            run | gallery)
                echo fonts-dejavu-core fonts-droid-fallback libgl1-mesa-dri qml-module-qtquick2 qml-module-qtquick-window2 ;;
            wayland)
                echo qtwayland5 ;;
            desktop)
                echo qtwayland5 sway xwayland grim wtype dbus-daemon \
                    fonts-dejavu-core xvfb openbox picom xdotool x11-utils \
                    xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils \
                    libgl1-mesa-dri qml-module-qtquick2 qml-module-qtquick-window2 \
                    dbus at-spi2-core python3-gi gir1.2-atspi-2.0 ;;
            docs)
                echo doxygen ;;
            package)
                echo clang fonts-dejavu-core make pkg-config qt5-qmake ;;
            benchmarks)
                echo fonts-dejavu-core libbenchmark-dev libkf5widgetsaddons-dev python3 qml-module-qtquick2 ;;
            debian)
                echo debhelper doxygen fakeroot git lintian mmdebstrap ;;
            headers)
                echo abigail-tools python3 ;;
            conventions)
                echo fonts-dejavu-core python3 clang-format doxygen ;;
            *)
                echo "uic_packages: unknown purpose $purpose" >&2
                return 2 ;;
        esac
    done | tr ' ' '\n' | sort -u
}

# uic_choose_platform: has Qt use Wayland where there is only Wayland. It prefers X where it can have both.
uic_choose_platform()
{
    if [ -z "${DISPLAY:-}" ] && [ -n "${WAYLAND_DISPLAY:-}" ]; then
        export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-wayland}
    fi
}

# uic_missing <package...>: those that are not installed.
uic_missing()
{
    comm -23 <(printf '%s\n' "$@" | sort -u) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

# uic_install <package...>: installs what is missing; names what cannot be installed and fails.
uic_install()
{
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "Not a Debian system; these have to be there already: $*" >&2
        return 0
    fi
    local missing root=()
    mapfile -t missing < <(uic_missing "$@")
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
            return 1
        fi
        root=(sudo)
    fi
    local apt=("${root[@]}" env DEBIAN_FRONTEND=noninteractive
        apt-get -qq -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0)
    local install=("${apt[@]}" install -y --no-install-recommends)

    echo "Installing ${missing[*]}" >&2
    # Old lists may still do, so a failure here is not yet the end.
    "${apt[@]}" update </dev/null >&2 || true
    if ! "${install[@]}" "${missing[@]}" </dev/null >&2; then
        # One by one, to tell which of them it is.
        local package
        for package in "${missing[@]}"; do
            "${install[@]}" "$package" </dev/null >&2 || true
        done
    fi
    mapfile -t missing < <(uic_missing "$@")
    if [ ${#missing[@]} -gt 0 ]; then
        echo "Cannot install: ${missing[*]}" >&2
        return 1
    fi
}

# uic_newer <file> [find expression]: true when a file or folder of the checkout is newer than <file>.
uic_newer()
{
    [ -n "$(find . \( -path ./build -o -path ./.git \) -prune -o -newer "$@" -print -quit)" ]
}

# uic_configure <preset>: makes the build directory, or makes it anew where it belongs to another
# checkout; does nothing when it is newer than every file that CMake reads.
uic_configure()
{
    local build=build/$1 fresh=()
    if [ -f "$build/CMakeCache.txt" ] &&
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$build/CMakeCache.txt"; then
        fresh=(--fresh)
    elif [ -f "$build/build.ninja" ] && ! uic_newer "$build/build.ninja" \
        \( -name CMakeLists.txt -o -name CMakePresets.json -o -name '*.cmake' -o -name '*.in' \); then
        return 0
    fi
    # CMake writes the file only when it changes; without a new time it would count as old every time.
    cmake --preset "$1" "${fresh[@]}" >&2 && touch "$build/build.ninja"
}

# uic_build <preset> [target...]: builds it, all of it without a target.
uic_build()
{
    cmake --build --preset "$1" ${2:+--target "${@:2}"} >&2
}
