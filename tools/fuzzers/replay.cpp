#include "fuzzing.h"

#include <QDir>
#include <QFile>

#include <cstdio>

/// Runs a fuzzer over the files of the folders that are named: what was found once is not to come back. It dies at the
/// first that does not hold, whose name is the last that it wrote.
int main(int argc, char* argv[])
{
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QString::fromLocal8Bit(argv[i]));
        for (const QFileInfo& entry : folder.entryInfoList(QDir::Files, QDir::Name)) {
            QFile file(entry.filePath());
            std::printf("%s\n", qPrintable(entry.fileName()));
            std::fflush(stdout);
            if (!file.open(QFile::ReadOnly))
                return 1;
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
            ++inputs;
        }
    }
    if (inputs == 0)
        std::fprintf(stderr, "usage: %s FOLDER...; there are no inputs\n", argv[0]);
    return inputs == 0 ? 1 : 0;
}
