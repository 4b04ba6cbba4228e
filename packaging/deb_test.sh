#!/bin/bash
# Installs, uses and removes the packages of build/deb in a bare root, and looks that the module's
# package asks for the sonames of the platform's libraries and never for the stand-in.
#
# usage: packaging/deb_test.sh DIR SUITE     REQUIRES: root, `make deb` before
set -euo pipefail
cd "$(dirname "$0")/.."
. setup/lib.sh

roots=${1:?usage: packaging/deb_test.sh DIR SUITE} suite=${2:?a suite}
. packaging/root.sh

module=(build/deb/python-ombra-sdk-v2-helper_*.deb)
depends=$(dpkg-deb -f "${module[0]}" Depends)
for soname in libombrasdkv2helper0 liblumo0 libtesselapitypes0 libombrasdkv2helperpythonmdioaccess0; do
    [[ " $depends," == *" $soname,"* ]] || die "the module's package does not ask for $soname: $depends"
done
[[ "$(dpkg-deb -f "${module[0]}")" != *standin* ]] || die "the module's package names the stand-in"

rm -rf "$root/src" "$root/debs" && mkdir "$root/debs"
git clone -q . "$root/src"
cp build/deb/*.deb "$root/debs/"
step "Python 2.7 in the root of $suite"
inside 'cd /src && setup/python27.sh build/python27.env'

step "Installing, using and removing the packages"
inside 'set -euo pipefail
export DEBIAN_FRONTEND=noninteractive
# Whoever brings the platform has packages with these names; here they are empty.
mkdir -p /debs/platform/DEBIAN
printf "%s\n" "Package: platform-sdk" "Version: 1" "Architecture: all" "Maintainer: nobody" \
    "Provides: libombrasdkv2helper0, liblumo0, libtesselapitypes0, libombrasdkv2helperpythonmdioaccess0" \
    "Description: stands for the libraries of the platform" > /debs/platform/DEBIAN/control
dpkg-deb --build /debs/platform /debs/platform.deb > /dev/null
apt-get -qq update
apt-get -qq install -y --no-install-recommends /debs/platform.deb /debs/python-ombra*.deb > /dev/null
if dpkg -s ombra-sdk-v2-standin > /dev/null 2>&1; then exit 1; fi
cd /
if python2.7 -c "import _OmbraSdkV2Helper" 2> /debs/error; then exit 1; fi
grep -q "so.0: cannot open shared object file" /debs/error
apt-get -qq install -y --no-install-recommends /debs/ombra-sdk-v2-*.deb > /dev/null
if python2.7 -c "import _OmbraSdkV2Helper" 2> /dev/null; then exit 1; fi   # no loader finds it by itself
LD_LIBRARY_PATH=/usr/lib/ombra-standin python2.7 /usr/share/doc/ombra-sdk-v2-doc/examples/quickstart.py > /dev/null
apt-get -qq purge -y python-ombra-sdk-v2-helper ombra-sdk-v2-standin ombra-sdk-v2-doc platform-sdk > /dev/null
apt-get -qq autoremove -y --purge > /dev/null
if ls /usr/lib/python2.7/dist-packages | grep Ombra || [ -e /usr/lib/ombra-standin ]; then exit 1; fi'
note "installed, used and removed"
