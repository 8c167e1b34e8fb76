// Writes the monotonic time at which it began to run, in nanoseconds, into the file named by its
// argument: what a child of the measured program is.

#include <cstdio>
#include <ctime>

int main(int argc, char** argv) {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    if (argc != 2)
        return 1;
    std::FILE* file = std::fopen(argv[1], "w");
    if (!file)
        return 1;
    std::fprintf(file, "%lld", static_cast<long long>(now.tv_sec) * 1000000000 + now.tv_nsec);
    return std::fclose(file) == 0 ? 0 : 1;
}
