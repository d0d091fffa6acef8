#!/usr/bin/env bash
#: ./dev package [linux|deb|windows]  make the packages in build/packages, twice, and test them; all, or of one kind
# Everything is built from a copy of the checkout's files, and once more from one in another folder, under another time zone
# and with other rights for new files: both must give the same bytes. What lies in build/packages was tested after it was
# packed, as a user gets it (tests/package/packages.py).
. "$(dirname "$0")/platforms_common.sh"

kinds=("$@")
[ $# -gt 0 ] || kinds=(linux deb windows)
for kind in "${kinds[@]}"; do
    case $kind in linux | deb | windows) ;; *) usage ;; esac
done
wanted() { [[ " ${kinds[*]} " == *" $1 "* ]]; }

need "${build_tools[@]}" libcli11-dev zlib1g-dev git python3 binutils dpkg-dev pkgconf
if wanted deb; then
    need build-essential debhelper fakeroot lintian
    debian_root "$cache/package-root" amd64 g++,cmake,make,pkgconf
fi
if wanted windows; then
    need llvm lld
    for machine in i686 x86_64; do
        prepare "windows-$machine"
        export "KRM_WINE_$machine=$KRM_WINE"
    done
fi
unset KRM_WINE # building needs none

SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
version=$(packaging/release.py version)

# copy_sources FOLDER: the checkout's files, as they are now. What is equal stays, so that it isn't compiled again.
copy_sources() {
    local folder=$1 file
    local -A wanted_files=()
    while IFS= read -r -d '' file; do
        [ -e "$file" ] || continue
        wanted_files[$file]=
        cmp -s "$file" "$folder/$file" || install -D --mode="$(stat -c %a "$file")" "$file" "$folder/$file"
    done < <(git ls-files -z --cached --others --exclude-standard)
    while IFS= read -r -d '' file; do
        [ -n "${wanted_files[$file]+.}" ] || rm "$folder/$file"
    done < <(find "$folder" -path "$folder/build" -prune -o ! -type d -printf '%P\0')
}

# stage PRESET FOLDER [OPTION...]: builds, and installs below FOLDER. Debian's packages have left other folders in the cache.
stage() {
    local preset=$1 folder=$2
    shift 2
    cmake --preset "$preset" --install-prefix /usr/local -DCMAKE_INSTALL_LIBDIR=lib -DCMAKE_SKIP_INSTALL_RPATH=OFF >/dev/null
    cmake --build --preset "$preset"
    cmake --install "build/$preset" --strip --prefix "$folder" >/dev/null
}

# make_packages FOLDER: builds FOLDER/source, and leaves the packages in FOLDER/made.
make_packages() (
    folder=$1
    rm -rf "$folder/made" "$folder/staged"
    mkdir -p "$folder/made"
    cd "$folder/source"
    if wanted linux; then
        name=krm-$version-linux-x86_64
        stage package-linux-static "$folder/staged/$name"
        stage package-linux "$folder/staged/$name"
        packaging/release.py documents linux "$folder/staged/$name"
        packaging/release.py archive "$folder/staged/$name" "$folder/made/$name.tar.gz"
    fi
    if wanted deb; then
        rm -f "$folder"/*.deb "$folder"/*.changes "$folder"/*.buildinfo
        rm -rf debian
        cp -R packaging/debian debian
        cat >debian/changelog <<CHANGELOG
krm ($version) unstable; urgency=medium

  * Version $version; the sources' CHANGELOG.md says what is new.

 -- $(sed -n 's/^Maintainer: //p' debian/control)  $(date -u -R -d "@$SOURCE_DATE_EPOCH")
CHANGELOG
        dpkg-buildpackage --build=binary --no-sign --no-pre-clean >"$folder/debian.log" 2>&1 || {
            tail -n 50 "$folder/debian.log"
            exit 1
        }
        mv "$folder"/*.deb "$folder/made"
    fi
    if wanted windows; then
        for machine in i686 x86_64; do
            name=krm-$version-windows-$machine
            stage package-windows-$machine "$folder/staged/$name"
            packaging/release.py documents windows "$folder/staged/$name"
            packaging/release.py archive "$folder/staged/$name" "$folder/made/$name.zip"
        done
    fi
    packaging/release.py sbom "$folder/made/krm-$version.spdx.json" "$folder"/made/*
)

# Always the same two folders, whatever the checkout's, so that a compiler's cache knows them. But the second build's cache
# must take each folder for another, or its files would be the first one's.
first=$cache/package/first
second=$cache/package/the-second
mkdir -p "$first/source" "$second/source"
exec 8>"$cache/package/lock"
flock 8
say "building ${kinds[*]}"
copy_sources "$first/source"
make_packages "$first"
say "building ${kinds[*]} again, in another folder"
copy_sources "$second/source"
(
    umask 027
    unset CCACHE_BASEDIR CCACHE_NOHASHDIR CCACHE_SLOPPINESS
    export TZ=Pacific/Kiritimati
    make_packages "$second"
)
for made in "$first"/made/*; do
    cmp "$made" "$second/made/$(basename "$made")"
done
say "both give the same bytes: $(find "$first/made" -type f | wc -l) files"

rm -rf build/packages
mkdir -p build
cp -R "$first/made" build/packages
(cd build/packages && sha256sum -- *)
say "testing the packages"
for kind in document "${kinds[@]}"; do
    python3 tests/package/packages.py "$kind" build/packages "$cache"
done
