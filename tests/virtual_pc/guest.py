"""Builds and starts the virtual PC: Debian's own kernel with its parallel-port driver, a handful of
programs in its memory, and an emulator that writes down every access to the port's registers."""

import lzma
import os
import pathlib
import re
import shutil
import subprocess

HERE = pathlib.Path(__file__).resolve().parent
MODULES = ("parport/parport.ko", "parport/parport_pc.ko", "char/ppdev.ko", "char/lp.ko")
USERS = {"member": (1000, "lp"), "outsider": (1001, None)}


def call(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, **options).stdout


def copy_module(file, folder):
    """Uncompressed, as the guest's insmod wants it."""
    if file.suffix == ".xz":
        (folder / file.stem).write_bytes(lzma.decompress(file.read_bytes()))
    else:
        shutil.copy(file, folder)


def fetch_kernel(folder):
    """Debian's present kernel and the modules of the port, fetched once into the folder and not
    installed. Returns the kernel's file; the modules lie beside it."""
    package = re.search(r"linux-image-\d\S+", call("apt-cache", "depends", "linux-image-amd64"))
    if package is None:
        raise SystemExit("apt doesn't know Debian's kernel for this PC; try: apt-get update")
    package = package.group()
    kernel = folder / package
    if not (kernel / "vmlinuz").exists():
        fetched = folder / "fetched"
        shutil.rmtree(fetched, ignore_errors=True)
        fetched.mkdir(parents=True)
        call("apt-get", "download", "-q", package, cwd=fetched, stderr=subprocess.DEVNULL)
        with subprocess.Popen(["dpkg", "--fsys-tarfile", *fetched.glob("*.deb")],
                              stdout=subprocess.PIPE) as archive:
            call("tar", "-x", "-C", fetched, "--wildcards", "./boot/vmlinuz-*",
                 *(f"*/kernel/drivers/{module}*" for module in MODULES), stdin=archive.stdout)
        kernel.mkdir(exist_ok=True)
        for module in MODULES:
            copy_module(next(fetched.glob(f"**/kernel/drivers/{module}*")), kernel)
        shutil.copy(next(fetched.glob("boot/vmlinuz-*")), kernel / "vmlinuz")
        shutil.rmtree(fetched)
    return kernel / "vmlinuz"


def copy_file(file, root):
    """To the place in the guest that it has here."""
    target = root / str(file).lstrip("/")
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(file, target)


def copy_libraries(binary, root):
    """All that a program or library is linked with."""
    for library in re.findall(r"(/\S+) \(0x", call("ldd", binary)):
        copy_file(library, root)


def copy_program(program, root):
    """The program without its debug data, with its libraries."""
    call("strip", "-o", root / "bin" / program.name, program)
    copy_libraries(program, root)


def copy_display(root):
    """What a window needs that nobody looks at."""
    plugins = pathlib.Path(call("qmake6", "-query", "QT_INSTALL_PLUGINS").strip())
    offscreen = plugins / "platforms/libqoffscreen.so"
    copy_file(offscreen, root)
    copy_libraries(offscreen, root)
    copy_file("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", root)
    copy_file("/etc/fonts/fonts.conf", root)


def build_memory(folder, programs, setup, kernel, window=None):
    """The guest's file system as an archive for the kernel, with or without the program that has a
    window."""
    root = folder / ("root" if window is None else "root-window")
    shutil.rmtree(root, ignore_errors=True)
    for name in ("bin", "dev", "proc", "sys", "tmp", "run/root", "run/lock", "etc", "guest/modules"):
        (root / name).mkdir(parents=True)
    for name in ("tmp", "run/lock"):
        (root / name).chmod(0o1777)
    shutil.copy("/bin/busybox", root / "bin")
    for script in (HERE / "guest").iterdir():
        shutil.copy(script, root / "guest")
        (root / "guest" / script.name).chmod(0o755)
    (root / "guest/init").rename(root / "init")
    for module in kernel.parent.glob("*.ko"):
        shutil.copy(module, root / "guest/modules")
    (root / "guest/setup.pwm").write_bytes(setup)
    passwd, group = "root:x:0:0::/:/bin/sh\n", "root:x:0:\nlp:x:7:"
    group += ",".join(user for user, (_, extra) in USERS.items() if extra == "lp") + "\n"
    for user, (number, _) in USERS.items():
        passwd += f"{user}:x:{number}:{number}::/tmp:/bin/sh\n"
        group += f"{user}:x:{number}:\n"
    (root / "etc/passwd").write_text(passwd)
    (root / "etc/group").write_text(group)
    for program in programs if window is None else (*programs, window):
        copy_program(program, root)
    if window is not None:
        copy_display(root)
    archive = root.with_suffix(".cpio")
    with open(archive, "wb") as out:
        names = call("find", ".", cwd=root)
        subprocess.run(["cpio", "-o", "-H", "newc", "--quiet", "-R", "0:0"], cwd=root, check=True,
                       input=names.encode(), stdout=out)
    return archive


def start(folder, kernel, memory, script, bases, entry="378", *, megabytes=512, patience=120, more=""):
    """Runs a script in the virtual PC until it ends, with ports at these addresses; it finds the
    first one's on the kernel's command line, to which more can be added. Returns the serial line's
    text and the trace, as text each."""
    base = bases[0] if bases else 0x378
    out, trace = folder / f"{script}-{base:x}.txt", folder / f"{script}-{base:x}.trace"
    for file in (out, trace):
        file.unlink(missing_ok=True)
    devices = []
    for number, address in enumerate(bases):
        devices += ["-chardev", f"null,id=nothing{number}", "-device",
                    f"isa-parallel,chardev=nothing{number},iobase={address:#x},irq={7 - 2 * number}"]
    line = f"quiet loglevel=1 panic=-1 mitigations=off script={script} base={base:#x} entry={entry} {more}"
    ended = subprocess.run(
        ["qemu-system-x86_64", "-M", "pc", "-accel", "tcg", "-m", str(megabytes), "-nodefaults",
         "-no-user-config", "-display", "none", "-no-reboot", "-kernel", kernel, "-initrd", memory,
         "-append", line, "-serial", f"file:{out}", *devices,
         "-device", "isa-debug-exit,iobase=0x501,iosize=1", "-msg", "timestamp=on",
         "-D", trace, "-trace", "parallel_ioport_*"],
        timeout=patience, env={**os.environ, "LANG": "C"}, check=False)
    text = out.read_text(errors="replace").replace("\r\n", "\n")
    if ended.returncode != 1:
        raise RuntimeError(f"the virtual PC ended with {ended.returncode}:\n{text}")
    return text, trace.read_text() if trace.exists() else ""
