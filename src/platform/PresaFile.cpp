#include "platform/PresaFile.h"

#include <fcntl.h>
#include <unistd.h>

namespace orvane {
namespace {

/// Of the open file and not of the process, so that a process sees its own locks too.
struct flock TuttoIlFile(short tipo) {
    struct flock blocco = {};
    blocco.l_type = tipo;
    blocco.l_whence = SEEK_SET;
    return blocco;
}

/// An open file; closed with its last copy.
std::shared_ptr<int> Apri(const std::filesystem::path& percorso, int modo) {
    const int fd = open(percorso.c_str(), modo | O_CLOEXEC);
    if (fd < 0)
        return nullptr;
    return {new int(fd), [](int* aperto) {
                close(*aperto);
                delete aperto;
            }};
}

} // namespace

std::shared_ptr<void> PrendiFile(const std::filesystem::path& percorso) {
    auto file = Apri(percorso, O_RDWR);
    struct flock blocco = TuttoIlFile(F_WRLCK);
    if (!file || fcntl(*file, F_OFD_SETLK, &blocco) != 0)
        return nullptr;
    return file;
}

bool FilePreso(const std::filesystem::path& percorso) {
    const auto file = Apri(percorso, O_RDONLY);
    struct flock blocco = TuttoIlFile(F_RDLCK);
    return file && fcntl(*file, F_OFD_GETLK, &blocco) == 0 && blocco.l_type != F_UNLCK;
}

} // namespace orvane
