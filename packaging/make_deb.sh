#!/bin/bash
# Makes the Debian packages of what build/ holds, in DIR, and lets lintian look at them.
#
# usage: packaging/make_deb.sh DIR
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

out=$PWD/${1:?usage: packaging/make_deb.sh DIR}
version=$(sed -n "s/^__version__ = '\(.*\)'/\1/p" python/OmbraSdkV2Helper.py)
tree=$out/ombra-sdk-v2-helper-$version

step "Debian packages: version $version, in $1"
rm -rf "$out"
mkdir -p "$tree"
git archive HEAD README.md docs examples | tar -x -C "$tree"
rm -r "$tree/docs/reference"
cp -r build/reference "$tree/reference"
cp -r packaging/debian "$tree/debian"
find "$tree" -name CMakeLists.txt -delete
cat > "$tree/debian/changelog" <<CHANGELOG
ombra-sdk-v2-helper ($version) stable; urgency=medium

  * See CHANGELOG.md of the sources.

 -- OmbraSdkV2Helper maintainers <maintainers@localhost.localdomain>  $(git log -1 --format=%cD)
CHANGELOG

(cd "$tree" && OMBRA_BUILD=$OLDPWD/build dpkg-buildpackage -b -us -uc) > "$out/build.log" 2>&1 ||
    { tail -n 20 "$out/build.log" >&2; die "dpkg-buildpackage failed, see $1/build.log"; }
lintian --fail-on error --suppress-tags-from-file packaging/lintian.txt "$out"/*.changes
ls "$out"/*.deb
