# Sourced by the tools that need a Debian which has nothing of ours yet.

# make_root RELEASE FOLDER [PACKAGE,PACKAGE...]: a minimal root of that release. MIRROR names another
# archive of Debian packages. Needs root and some GB.
make_root() {
  [ "$(id -u)" -eq 0 ] || { echo "Rendszergazdaként indítsa!" >&2; return 1; }
  need_packages "a friss Debianhoz" $fresh_debian_packages
  rm -rf "$2"
  mkdir -p "$2"
  debootstrap --variant=minbase ${3:+--include="$3"} "$1" "$2" \
    "${MIRROR:-http://deb.debian.org/debian}" >"$2.log"
  echo force-unsafe-io >"$2/etc/dpkg/dpkg.cfg.d/fresh" # nothing in it must outlive a power cut
}

# inside ROOT FOLDER COMMAND: runs it there; its processes and mounts end with it.
inside() {
  unshare --mount --pid --fork sh -eu -c '
    mount -t proc proc "$1/proc"
    mount -t tmpfs tmpfs "$1/dev/shm"
    exec chroot "$1" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
      DEBIAN_FRONTEND=noninteractive sh -eu -c "cd \"\$1\"; eval \"\$2\"" inside "$2" "$3"
  ' inside "$1" "$2" "$3" </dev/null
}
