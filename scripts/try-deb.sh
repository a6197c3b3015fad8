#!/usr/bin/env bash
# Installs the Debian package on a bare Debian 12 and tries it there as a new host developer would: hello is built on the
# installed package, answered and ended; gallery and Designer's plug-in are loaded. As root; takes minutes and the network.
#   try-deb.sh [PACKAGE.deb [ROOT]]
# PACKAGE: made in build/release where it is not given. ROOT: a folder with a bare Debian 12, which is copied and left as
# it is; made by debootstrap where it is not given.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
. scripts/packages.sh
deb=${1:-} bare=${2:-}

[ "$(id -u)" -eq 0 ] || { say "Needs root, for chroot"; exit 1; }
if [ -z "$deb" ]; then
    require_packages "${PACKAGES_BUILD[@]}"
    build_preset release
    (cd build/release && cpack -G DEB) >build/cpack.log
    deb=$(find build/release -maxdepth 1 -name 'customcontrols_*.deb' | head -n 1)
fi

root=$(mktemp -d /tmp/try-deb.XXXXXX)
trap 'rm -rf "$root"' EXIT
if [ -n "$bare" ]; then
    say "Copying $bare"
    cp -a "$bare/." "$root"
else
    require_packages debootstrap
    say "Making a bare Debian 12"
    debootstrap --variant=minbase bookworm "$root" >build/debootstrap.log
fi
cp "$deb" "$root/root/customcontrols.deb"
cp -r examples/hello "$root/root/hello"

cat >"$root/root/try" <<'TRY'
#!/bin/bash
set -euo pipefail
cd /root
export DEBIAN_FRONTEND=noninteractive LANG=C.UTF-8 HOME=/root
apt-get update -qq
apt-get install -y -qq --no-install-recommends ./customcontrols.deb >/dev/null
echo "installed: $(dpkg-query -W customcontrols)"
# The package alone is enough to run its programs.
export QT_QPA_PLATFORM=offscreen
gallery --version
machine-simulator --version
timeout 60 gallery --help >/dev/null
unset QT_QPA_PLATFORM
plugin=$(dpkg -L customcontrols | grep '/plugins/designer/libCustomControlsDesigner.so$')
if ldd "$plugin" | grep 'not found'; then exit 1; fi
echo "plug-in: $plugin"

apt-get install -y -qq --no-install-recommends g++ cmake ninja-build pkg-config qt6-base-dev libgl1-mesa-dev \
    libvulkan-dev designer-qt6 xvfb xauth xdotool openbox fonts-noto-cjk >/dev/null
cmake -S hello -B hello-build -G Ninja >/dev/null
cmake --build hello-build >/dev/null
g++ -std=c++17 -fPIC hello/main.cpp -o hello-pkg-config $(pkg-config --cflags --libs CustomControls)

cat >answer <<'ANSWER'
#!/bin/bash
openbox & manager=$!
for program in hello-build/hello ./hello-pkg-config; do
    $program & window=$(timeout 30 xdotool search --sync --onlyvisible --pid $! | head -n 1)
    timeout 10 xdotool windowfocus --sync "$window" key Return
    wait $! || exit 1
    echo "$program was answered"
done
gallery & id=$!
timeout 60 xdotool search --sync --onlyvisible --pid $id >/dev/null || exit 1
kill $id; wait $id
echo "gallery was shown"
QT_DEBUG_PLUGINS=1 /usr/lib/qt6/bin/designer >designer.log 2>&1 & id=$!
timeout 60 xdotool search --sync --onlyvisible --pid $id >/dev/null || exit 1
for _ in $(seq 100); do
    grep -q 'libCustomControlsDesigner.so" loaded library' designer.log && break
    sleep 0.2
done
kill $id; wait $id
grep -q 'libCustomControlsDesigner.so" loaded library' designer.log || { tail -n 20 designer.log; exit 1; }
echo "Designer has loaded the plug-in"
kill $manager
exit 0
ANSWER
chmod +x answer
DBUS_SESSION_BUS_ADDRESS=disabled: timeout 300 xvfb-run -a --server-args="-screen 0 1600x1200x24" ./answer
apt-get purge -y -qq customcontrols >/dev/null
if [ -e /usr/bin/gallery ] || [ -e /usr/include/CustomControls ]; then
    echo "something was left behind"
    exit 1
fi
echo "purged without a trace"
TRY
chmod +x "$root/root/try"

say "Trying $(basename "$deb") in $root"
# A mount space of its own: what is mounted there goes with it.
unshare --mount --pid --fork --kill-child bash -c '
    root=$1
    mount --make-rprivate /
    mount --bind "$root" "$root"
    mount -t proc proc "$root/proc"
    for folder in sys dev; do mount --rbind "/$folder" "$root/$folder"; done
    cp /etc/resolv.conf "$root/etc/resolv.conf" 2>/dev/null || true
    exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin TERM=dumb chroot "$root" /root/try' try-deb "$root"
say "The package installs and runs on a bare Debian 12"
