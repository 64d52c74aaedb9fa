"""Installs the project, and uses it as a stranger does: from the prefix alone.

installation.py install SOURCE BUILD WORK    installs the build directory, and looks at what came
installation.py TEST SOURCE BUILD WORK       one of the functions below, named after what it tests, with that installation

WORK is a directory of the test. The installation is moved before it is used, so that nothing works by a path of its own.
"""

import os
import re
import shutil
import subprocess
import sys

SOURCE, BUILD, WORK = (os.path.abspath(path) for path in sys.argv[2:5])
PREFIX = os.path.join(WORK, "prefix")
PLUGIN = "lib/tolvik/plugins/CityGMLModelPlugin.so"
EXAMPLE = os.path.join(SOURCE, "examples/district.gml")
SKIPPED = 77

# What is installed is used from there, and not from where the machine may have an older one.
os.environ.pop("LD_LIBRARY_PATH", None)
os.environ.pop("TOLVIK_PLUGIN_PATH", None)
os.environ.update(QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", XDG_RUNTIME_DIR=WORK)


def run(*command, **options):
    print("+", " ".join(command), flush=True)
    return subprocess.run(command, check=True, **options)


def output(*command, **options):
    return run(*command, stdout=subprocess.PIPE, universal_newlines=True, **options).stdout


def expect(condition, message):
    if not condition:
        sys.exit("FAILED: " + message)


def installed_files():
    for directory, _, names in os.walk(PREFIX):
        for name in names:
            yield os.path.join(directory, name)


def install():
    first = os.path.join(WORK, "first")
    for folder in (first, PREFIX):
        shutil.rmtree(folder, ignore_errors=True)
    output("cmake", "--install", BUILD, "--prefix", first)
    os.rename(first, PREFIX)
    for path in installed_files():
        with open(path, "rb") as file:
            content = file.read()
        for folder in (SOURCE, BUILD, first):
            expect(folder.encode() not in content, "%s names %s" % (path, folder))
    for path in ("bin/tolvik-inspect", PLUGIN, "share/man/man1/tolvik-inspect.1", "share/tolvik/schemas/core.xsd"):
        expect(os.path.exists(os.path.join(PREFIX, path)), "there is no " + path)


def program():
    """The terminal tool, and a man page that knows all its commands and options."""
    tool = os.path.join(PREFIX, "bin/tolvik-inspect")
    expect("lantern-house" in output(tool, "rows", EXAMPLE), "the installed program shows no rows")
    with open(os.path.join(PREFIX, "share/man/man1/tolvik-inspect.1"), encoding="utf-8") as file:
        page = file.read().replace("\\-", "-")
    told = output(tool, "--help")
    for word in re.findall(r"^  (\w+) FILE", told, re.M) + re.findall(r"--[a-z-]+", told):
        expect(re.search(r"(^|\s)%s\b" % re.escape(word), page), "the man page does not tell of " + word)


def viewer():
    """The desktop program, which finds the plug-in of its installation."""
    picture = os.path.join(WORK, "viewer.png")
    run(os.path.join(PREFIX, "bin/tolvik-viewer"), EXAMPLE, "--picture", picture, timeout=60, env=dict(os.environ, HOME=WORK))
    expect(os.path.exists(picture), "the installed viewer shows no window")
    for path in ("applications/tolvik-viewer.desktop", "icons/hicolor/scalable/apps/tolvik-viewer.svg"):
        expect(os.path.exists(os.path.join(PREFIX, "share", path)), "there is no " + path)


def hand_written():
    """The installed headers that are not generated: (path to include, path of the source file)."""
    for path in installed_files():
        folder, _, name = os.path.relpath(path, os.path.join(PREFIX, "include/tolvik")).partition("/")
        for origin in ("", "interfaces"):
            source = os.path.join(SOURCE, origin, name)
            if folder != ".." and os.path.exists(source):
                yield name, source


def include_options():
    folders = [os.path.join(PREFIX, "include/tolvik", name) for name in ("model", "platform", "binding")]
    qt = output("pkg-config", "--cflags", "Qt5Widgets").split()
    return ["-I%s" % folders[0], "-I%s" % folders[1], "-isystem", folders[2], "-fPIC", *qt]


def compile_headers(*names):
    text = "".join('#include "%s"\n' % name for name in names)
    run("g++", "-std=c++17", "-fsyntax-only", "-Wall", "-Wextra", "-x", "c++", "-", *include_options(),
        input=text.encode())


def headers():
    """Every header that a host needs is there, and none that is private."""
    installed = dict(hand_written())
    texts = {}
    for source in installed.values():
        with open(source, encoding="utf-8") as file:
            texts[source] = file.read()
    for directory in ("interfaces", "UI/Models/CityGMLModel"):
        for folder, _, names in os.walk(os.path.join(SOURCE, directory)):
            for name in names:
                path = os.path.join(folder, name)
                if name.endswith(".h") and path not in texts:
                    with open(path, encoding="utf-8") as file:
                        expect(not re.search(r"^(class|struct|\w.*) [A-Z]+_EXPORT |^[A-Z]+_EXPORT ", file.read(), re.M),
                               "%s offers something and is not installed" % path)
    included = set(re.findall(r'#include "(.*?)"', "".join(texts.values())))
    for name, source in installed.items():
        is_public = "_EXPORT" in texts[source] or name in included or "\ntemplate" in texts[source]
        expect(is_public or "interfaces/" in source, "%s offers nothing and is installed" % name)
    compile_headers(*sorted(installed))


def each_header():
    """Each header can be included alone, but for those that are parts of others, and those of each namespace together."""
    for name, source in sorted(hand_written()):
        with open(source, encoding="utf-8") as file:
            if not re.search(r"include that (header )?instead", file.read()):
                compile_headers(name)
    binding = os.path.join(PREFIX, "include/tolvik/binding")
    for name in sorted(os.listdir(binding)):
        if os.path.exists(os.path.join(binding, name, "AllTypes.h")):
            compile_headers(name + "/AllTypes.h")


def build_host(name, folder="examples"):
    """Builds anew what has changed: what is installed keeps the time of its file."""
    build = os.path.join(WORK, name)
    run("cmake", "-G", "Ninja", "-S", os.path.join(SOURCE, folder, name), "-B", build,
        "-D", "CMAKE_PREFIX_PATH=" + PREFIX, "-D", "CMAKE_BUILD_TYPE=Release", stdout=subprocess.DEVNULL)
    run("cmake", "--build", build)
    return build


def widgets():
    run(os.path.join(build_host("host-widgets"), "windowtest"))


def qml():
    host = os.path.join(build_host("host-qml"), "host-qml")
    texts = output(host, EXAMPLE, "--print").split("\n")
    for text in ("Lantern House", "lantern-house", "Building", "MeasuredHeight", "9"):
        expect(text in texts, "the window does not show " + text)

    # The same libraries without a plug-in
    bare = os.path.join(WORK, "bare")
    shutil.rmtree(bare, ignore_errors=True)
    os.mkdir(bare)
    for name in os.listdir(os.path.join(PREFIX, "lib")):
        if ".so." in name:
            shutil.copy(os.path.join(PREFIX, "lib", name), bare)
    alone = dict(os.environ, LD_LIBRARY_PATH=bare)
    told = subprocess.run([host, EXAMPLE, "--print"], env=alone, stderr=subprocess.PIPE, universal_newlines=True)
    expect(told.returncode == 1 and "There is no plug-in" in told.stderr, "without a plug-in: " + told.stderr)
    found = dict(alone, TOLVIK_PLUGIN_PATH=os.path.dirname(os.path.join(PREFIX, PLUGIN)))
    expect("Lantern House" in output(host, EXAMPLE, "--print", env=found), "the variable does not count")


def python():
    interpreter = "/usr/bin/python3"
    if subprocess.run([interpreter, "-c", "import PyQt5.QtWidgets"], stderr=subprocess.DEVNULL).returncode != 0:
        print("there is no PyQt5")
        sys.exit(SKIPPED)
    script = [interpreter, os.path.join(SOURCE, "examples/host-python/rows.py"), os.path.join(PREFIX, PLUGIN)]
    expect("\n  Building lantern-house Lantern House\n" in output(*script, EXAMPLE), "the script prints other rows")
    saved = os.path.join(WORK, "saved.gml")
    run(*script, EXAMPLE, "lantern-house", "MeasuredHeight", "7.25", saved)
    with open(saved, encoding="utf-8") as file:
        expect(">7.25</bldg:measuredHeight>" in file.read(), "the script has not set the height")
    refused = subprocess.run([*script, EXAMPLE, "lantern-house", "MeasuredHeight", "high", saved])
    expect(refused.returncode != 0, "the script has set a height that is no number")


def pkgconfig():
    """A host without CMake."""
    os.environ["PKG_CONFIG_PATH"] = os.path.join(PREFIX, "lib/pkgconfig")
    flags = output("pkg-config", "--cflags", "--libs", "tolvik-model").split()
    source = os.path.join(WORK, "host.cpp")
    with open(source, "w", encoding="utf-8") as file:
        file.write('#include "UI/Models/CityGMLModel/CityGMLModel.h"\n#include <QCoreApplication>\n'
                   "int main(int argc, char** argv)\n{\n    QCoreApplication application(argc, argv);\n"
                   "    tolvik::CityGMLModel model(nullptr, nullptr);\n    model.load(QString(argv[1]));\n"
                   "    return model.rowCount() > 1 ? 0 : 1;\n}\n")
    host = os.path.join(WORK, "pkgconfig-host")
    run("g++", "-std=c++17", "-fPIC", source, "-o", host, *flags, "-Wl,-rpath," + os.path.join(PREFIX, "lib"))
    run(host, EXAMPLE)


def bindings():
    """A program with a second binding: neither takes operations of the other's containers or objects for its own."""
    build = build_host("secondbinding", "tests/install")
    run(os.path.join(build, "secondbinding"), EXAMPLE)
    library = os.path.join(PREFIX, "lib/libCityGMLBinding.so")
    exported = output("nm", "-D", "-C", "--defined-only", library)
    shared = re.findall(r"^\S+ \w (?:\w+ )*xsd::cxx::tree::(?:(?:one|optional|sequence)<|_type\b).*", exported, re.M)
    expect(not shared, library + " exports " + "\n".join(shared))


# What lintian finds that is as it is: no licence was chosen.
ALLOWED_TAGS = ("copyright-without-copyright-notice", "no-copyright-file")


def packages():
    """Packages as Debian splits them, which work when they are unpacked."""
    folder = os.path.join(WORK, "packages")
    shutil.rmtree(folder, ignore_errors=True)
    run("cpack", "-G", "DEB", "--config", os.path.join(BUILD, "CPackConfig.cmake"), "-B", folder, stdout=subprocess.DEVNULL)
    files = {name.partition("_")[0]: os.path.join(folder, name) for name in os.listdir(folder) if name.endswith(".deb")}
    wanted = {
        "libtolvik0.2": r"/usr/lib/libCityGMLModel\.so\.0\.2\b",
        "tolvik-plugin": r"/usr/lib/tolvik/plugins/CityGMLModelPlugin\.so",
        "tolvik": r"/usr/share/man/man1/tolvik-inspect\.1\.gz",
        "libtolvik-dev": r"/usr/include/tolvik/binding/bldg/BuildingType\.hxx",
        "tolvik-doc": r"/usr/share/doc/tolvik-doc/docs/hosts\.md",
    }
    expect(files.keys() == wanted.keys(), "the packages are " + ", ".join(sorted(files)))
    root = os.path.join(folder, "root")
    contents = {}
    for name, path in files.items():
        for file in re.findall(r" \.(/\S*[^/\s])(?: -> .*)?$", output("dpkg-deb", "-c", path), re.M):
            expect(file not in contents, "%s is in two packages" % file)
            contents[file] = name
        run("dpkg-deb", "-x", path, root)
    for name, pattern in wanted.items():
        expect(any(re.fullmatch(pattern + ".*", file) for file in contents if contents[file] == name),
               "%s has no %s" % (name, pattern))
    expect("lantern-house" in output(os.path.join(root, "usr/bin/tolvik-inspect"), "rows", EXAMPLE),
           "the packed program shows no rows")
    if shutil.which("lintian"):
        found = output("sh", "-c", 'lintian --tag-display-limit 0 --fail-on none "$@"', "sh", *files.values())
        print(found)
        faults = [line for line in found.split("\n") if line.startswith("E:") and not any(tag in line for tag in ALLOWED_TAGS)]
        expect(not faults, "\n".join(faults))


if __name__ == "__main__":
    tests = (install, program, viewer, headers, each_header, widgets, qml, python, pkgconfig, bindings, packages)
    {test.__name__: test for test in tests}[sys.argv[1]]()
