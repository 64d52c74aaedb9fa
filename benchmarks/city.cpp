#include "SyntheticCity.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

/// `tolvik-city N [OUT]`: writes a synthetic city of N buildings to the file OUT, or to standard output.
int main(int argc, char* argv[])
{
    char* end = nullptr;
    const long buildings = argc > 1 ? std::strtol(argv[1], &end, 10) : 0;
    if (argc < 2 || argc > 3 || *end != '\0' || buildings < 1 || buildings > 10000000) {
        std::cerr << "Usage: tolvik-city N [OUT]\n\n"
                     "Writes a synthetic city of N buildings, of about 8 kB each, to the file OUT or to "
                     "standard output.\n";
        return 2;
    }

    std::ofstream file;
    if (argc == 3) {
        file.open(argv[2]);
    }
    std::ostream& stream = argc == 3 ? file : std::cout;
    tolvik::SyntheticCity(static_cast<int>(buildings)).write(stream);
    stream.flush();
    if (!stream) {
        std::cerr << "tolvik-city: cannot write " << (argc == 3 ? argv[2] : "standard output") << '\n';
        return 1;
    }
    return 0;
}
