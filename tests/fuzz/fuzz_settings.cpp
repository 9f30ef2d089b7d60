// Any bytes as the settings file: read, written, read again.
#include <QFile>
#include <QTemporaryDir>

#include "platform/runtime/text_file.h"
#include "shell/settings_file.h"
#include "tests/fuzz/fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const QTemporaryDir folder("/dev/shm/fuzz_settings-XXXXXX"); // spares the medium
    static const QString path = folder.filePath("Settings.vlp");
    fuzz::setRegion(size > 0 ? data[size - 1] : 0);
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) std::abort();
        file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    }
    const Settings settings = SettingsFile::read(path);
    fuzz::allowing({6, 13}, [&] { settings.backColor(); });

    const QStringList written = SettingsFile::toLines(settings);
    fuzz::expect(written.size() == 27, "27 lines are written");
    SettingsFile::write(path, settings);
    fuzz::expect(TextFile::readLines(path) == written, "no value breaks its line");
    const QStringList again = SettingsFile::toLines(SettingsFile::read(path));
    for (int i = 0; i < 27; ++i) {
        // A size beyond 9999 counts as one of another notation and comes back smaller.
        const bool isSize = i >= 7 && i < 13;
        fuzz::expect(isSize ? again[i].toInt() <= written[i].toInt() : again[i] == written[i],
                     "what was written is read");
    }
    return 0;
}
