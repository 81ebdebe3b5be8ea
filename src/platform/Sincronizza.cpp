#include "platform/Sincronizza.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace orvane {

bool Sincronizza(const std::filesystem::path& percorso) {
    // Read access is enough: what is waited for is the file's, not the descriptor's.
    const int fd = open(percorso.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    int esito = 0;
    do {
        esito = fsync(fd);
    } while (esito != 0 && errno == EINTR);
    const bool fatto = esito == 0 || errno == EINVAL || errno == EROFS;
    close(fd);
    return fatto;
}

} // namespace orvane
