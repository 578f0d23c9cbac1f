#!/usr/bin/env bash
# Installs a Debian package into a fresh, minimal system, drives the program there, and purges it again: nothing is left.
# usage: tests/package/check.sh PACKAGE     needs root (a system inside of this one), and Debian's archive
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
package=$(readlink -f "${1:?usage: check.sh PACKAGE}")
[ "$(id -u)" = 0 ] || { say "skipped: only root can set up a system of its own"; exit 0; }

cache=${XDG_CACHE_HOME:-$HOME/.cache}/tarnwick
base=$cache/bookworm.tar
system=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-system-XXXXXX")
finish() {
  local place
  for place in proc dev; do umount -l "$system/$place" 2>/dev/null || true; done
  rm -rf --one-file-system "$system"
}
trap finish EXIT
trap 'exit 143' TERM INT HUP

inside() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$system" "$@"; }
listing() { inside find / -xdev \( -path /proc -o -path /dev -o -path /tmp -o -path /project -o -path /var/cache -o -path /var/log -o -path /var/lib/dpkg -o -path /var/lib/apt -o -path /root \) -prune -o -print | sort; }

mkdir -p "$cache"
if [ ! -f "$base" ]; then
  say "A minimal system ..."
  rm -rf "$cache/bookworm.new"
  if ! quietly "$root/build/packages/debootstrap.log" debootstrap --variant=minbase bookworm "$cache/bookworm.new" http://deb.debian.org/debian; then
    say "skipped: no minimal system could be made here: $(tail -n 1 "$root/build/packages/debootstrap.log")"
    exit 0
  fi
  tar -C "$cache/bookworm.new" -cf "$base.new" .
  rm -rf "$cache/bookworm.new"
  mv "$base.new" "$base"
fi
tar -C "$system" -xf "$base"
cp /etc/resolv.conf "$system/etc/resolv.conf"
for place in /etc/apt/apt.conf.d/*proxy* ; do [ -e "$place" ] && cp "$place" "$system/etc/apt/apt.conf.d/"; done
if ! mount -t proc proc "$system/proc" 2>/dev/null; then
  say "skipped: this machine lets nobody mount what a system needs"
  exit 0
fi
mount --rbind /dev "$system/dev"
mount --make-rslave "$system/dev"

say "What a desktop has ..."
log=$root/build/packages/system.log
quietly "$log" inside apt-get -q update
quietly "$log" inside apt-get -q install -y --no-install-recommends default-jdk xvfb openbox xdotool xclip x11-utils at-spi2-core \
  dbus-daemon python3 python3-gi gir1.2-atspi-2.0 imagemagick libglib2.0-bin fonts-dejavu-core shared-mime-info \
  desktop-file-utils hicolor-icon-theme
# What it depends on is there before, so that only its own files come and go.
mapfile -t libraries < <(dpkg-deb -f "$package" Depends | sed 's/([^)]*)//g; s/|[^,]*//g' | tr ',' '\n' | tr -d ' ')
quietly "$log" inside apt-get -q install -y --no-install-recommends "${libraries[@]}"
listing >"$root/build/packages/before"
cp "$package" "$system/tmp/package.deb"
say "Installing $(basename "$package") ..."
quietly "$log" inside apt-get -q install -y --no-install-recommends /tmp/package.deb
mkdir -p "$system/project"
tar -C "$root" -c tests samples scripts | tar -C "$system/project" -x
inside /project/scripts/with-display.sh /usr/bin/python3 /project/tests/package/drive.py /project
say "Purging ..."
quietly "$log" inside apt-get -q purge -y tarnwick
listing >"$root/build/packages/after"
if ! left=$(comm -13 "$root/build/packages/before" "$root/build/packages/after") || [ -n "$left" ]; then
  say "FAILED: left behind:" && head -n 50 <<<"$left" >&2
  exit 1
fi
say "purged: nothing is left"
