"""The licences of what a bundle holds, and where its sources are."""
import pathlib
import shutil
import subprocess

COMMON = pathlib.Path("/usr/share/common-licenses")


class LicenceError(OSError):
    pass


def owners_of(files):
    """The package of each file, as dpkg tells for all of them at once. Its lists may name a file by the
    way that /lib leads to /usr/lib."""
    owners = {}
    names = {name for file in files for name in (str(file), str(file).removeprefix("/usr"))}
    done = subprocess.run(["dpkg", "-S", *sorted(names)], capture_output=True, text=True, check=False)
    for line in done.stdout.splitlines():
        packages, _, name = line.rpartition(": ")
        owners[name.removeprefix("/usr")] = packages.split(",")[0]
    return owners


def packages_of(bundle):
    """The files of each package, by its name."""
    owners = owners_of(set(bundle.origins.values()))
    files = {}
    for target, origin in sorted(bundle.origins.items()):
        package = owners.get(str(origin).removeprefix("/usr"))
        if package is None:
            raise LicenceError(f"{origin} belongs to no Debian package, so that its licence is unknown")
        files.setdefault(package, []).append(target.relative_to(bundle.tree))
    return files


def source_of(package):
    told = subprocess.run(["dpkg-query", "-W", "-f", "${source:Package} ${source:Version}", package],
                          capture_output=True, text=True, check=True)
    return tuple(told.stdout.split())


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
