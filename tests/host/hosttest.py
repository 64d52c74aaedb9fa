"""Makes the project that the README tells a host to make, with this one in it as the directory `tolvik`.

hosttest.py SOURCE DIRECTORY              makes it in DIRECTORY and configures it
hosttest.py SOURCE DIRECTORY DOCUMENT     builds it too, and opens DOCUMENT with its program, which must go on running
"""

import os
import shutil
import subprocess
import sys

from recipe import block


def run(*command):
    print("+", " ".join(command), flush=True)
    subprocess.run(command, check=True)


def make_project(source, directory):
    os.makedirs(directory, exist_ok=True)
    link = os.path.join(directory, "tolvik")
    if not os.path.islink(link):
        os.symlink(source, link)
    readme = os.path.join(source, "README.md")
    for name, language in (("CMakeLists.txt", "cmake"), ("main.cpp", "cpp")):
        with open(os.path.join(directory, name), "w", encoding="utf-8") as file:
            file.write(block(readme, language))


def stays_open(program, document):
    """The program shows a window until somebody closes it, which nobody does here."""
    try:
        return subprocess.run([program, document], timeout=10).returncode
    except subprocess.TimeoutExpired:
        return None


def main():
    source, directory = (os.path.abspath(path) for path in sys.argv[1:3])
    build = os.path.join(directory, "build")
    shutil.rmtree(os.path.join(build, "CMakeFiles"), ignore_errors=True)
    make_project(source, directory)
    run("cmake", "-G", "Ninja", "-S", directory, "-B", build, "-D", "CMAKE_BUILD_TYPE=RelWithDebInfo")
    if len(sys.argv) > 3:
        run("cmake", "--build", build, "--target", "my-viewer")
        code = stays_open(os.path.join(build, "my-viewer"), os.path.abspath(sys.argv[3]))
        if code is not None:
            sys.exit("the program has ended with %d" % code)


if __name__ == "__main__":
    main()
