#include "foundation/SystemRoom.h"

#include "foundation/FileDescriptor.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace velmora {

bool hasSystemRoom(int descriptors, std::size_t bytes) {
    std::vector<FileDescriptor> taken;
    while (descriptors-- > 0) {
        taken.emplace_back(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0));
        if (!taken.back())
            return false;
    }
    void* const memory =
        ::mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return memory != MAP_FAILED && ::munmap(memory, bytes) == 0;
}

} // namespace velmora
