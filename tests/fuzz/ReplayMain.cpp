// Feeds every file of the folders given to a fuzz target, so that what once was found stays found.

#include <QDirIterator>
#include <QFile>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv) {
    int count = 0;
    for (int index = 1; index < argc; ++index) {
        QDirIterator files(QFile::decodeName(argv[index]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray bytes = file.readAll();
            std::printf("%s\n", qPrintable(file.fileName()));
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const uint8_t*>(bytes.constData()),
                static_cast<size_t>(bytes.size()));
            ++count;
        }
    }
    return count > 0 ? 0 : 1;
}
