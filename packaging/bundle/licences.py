"""The licences of what a bundle holds, and where its sources are."""
import pathlib
import shutil
import subprocess

COMMON = pathlib.Path("/usr/share/common-licenses")


class LicenceError(OSError):
    pass


def query(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return done.stdout if done.returncode == 0 else ""


def package_of(file):
    """The Debian package that a file came with. Its list may name it by the way /lib leads to
    /usr/lib."""
    for name in (str(file), str(file).removeprefix("/usr")):
        owner = query("dpkg", "-S", name)
        if owner:
            return owner.split(": ")[0].split(",")[0]
    raise LicenceError(f"{file} belongs to no Debian package, so that its licence is unknown")


def packages_of(bundle):
    """The files of each package, by its name."""
    files, known = {}, {}
    for target, origin in sorted(bundle.origins.items()):
        if origin not in known:
            known[origin] = package_of(origin)
        files.setdefault(known[origin], []).append(target.relative_to(bundle.tree))
    return files


def source_of(package):
    name, version = query("dpkg-query", "-W", "-f", "${source:Package} ${source:Version}", package).split()
    return name, version


def copy_copyright(package, folder):
    name = package.split(":")[0]
    text = pathlib.Path("/usr/share/doc") / name / "copyright"
    if not text.exists():
        raise LicenceError(f"{text} is missing: the licence of {package} must come with its files")
    shutil.copyfile(text, folder / name)


def write_sources(files, path):
    """What to ask for, exactly."""
    sources = {}
    for package, names in files.items():
        sources.setdefault(source_of(package), []).extend(names)
    with path.open("w", encoding="utf-8") as out:
        out.write("Source packages of Debian, their versions, and the files here that were built from them.\n")
        for (name, version), names in sorted(sources.items()):
            out.write(f"\n{name} {version}\n")
            few = names if len(names) < 40 else [*names[:1], f"and {len(names) - 1} more beside it"]
            out.writelines(f"    {file}\n" for file in few)


def write_licences(bundle, maintainer):
    folder = bundle.tree / "share" / "doc" / "corvane" / "licences"
    texts = folder / "packages"
    texts.mkdir(parents=True)
    files = packages_of(bundle)
    for package in files:
        copy_copyright(package, texts)
    shutil.copytree(COMMON, folder / "common", symlinks=True)
    write_sources(files, folder / "SOURCES")
    notice = pathlib.Path(__file__).resolve().parent / "README"
    text = notice.read_text(encoding="utf-8")
    text = text.replace("@GLIBC@", bundle.least_c_library()).replace("@MAINTAINER@", maintainer)
    (bundle.tree / "README").write_text(text, encoding="utf-8")
