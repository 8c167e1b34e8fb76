// Reading and writing a list of 1,000 buttons, in memory and through the store on disk.

#include "foundation/UserDefaults.h"
#include "model/ShortcutManager.h"
#include "model/StoredForm.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace velmora;
using namespace Qt::StringLiterals;

namespace {

QList<ShortcutButton> manyButtons() {
    QList<ShortcutButton> buttons;
    for (int number = 0; number < 250; ++number) {
        const QString text = u"Button スクショ %1"_s.arg(number);
        buttons << ShortcutButton(text, u"globe"_s, LaunchApp{text, u"org.example.editor"_s})
                << ShortcutButton(
                       text, u"globe"_s, OpenUrl{u"https://www.example.com/search?q=x"_s})
                << ShortcutButton(
                       text, u"camera"_s,
                       ExecuteShellCommand{u"notify-send \"now\" && date > /tmp/now.txt"_s})
                << ShortcutButton(
                       text, u"keyboard"_s, PressKeyCombo{{u"Command"_s, u"Shift"_s}, u"4"_s});
    }
    return buttons;
}

void encodeList(benchmark::State& state) {
    const auto buttons = manyButtons();
    for (auto _ : state)
        benchmark::DoNotOptimize(encodedList(buttons));
}
BENCHMARK(encodeList)->Unit(benchmark::kMicrosecond);

void decodeList(benchmark::State& state) {
    const QByteArray json = encodedList(manyButtons());
    for (auto _ : state)
        benchmark::DoNotOptimize(decodedList(json, readButton));
    state.SetBytesProcessed(state.iterations() * json.size());
}
BENCHMARK(decodeList)->Unit(benchmark::kMicrosecond);

/// What a start pays: opening the file and loading the list, nothing known of it yet.
void openAndLoad(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString original = folder.path() + u"/original.conf"_s;
    UserDefaults(original).setData(u"SavedShortcuts"_s, encodedList(manyButtons()));
    int number = 0;
    for (auto _ : state) {
        state.PauseTiming();
        // QSettings remembers a file by its name.
        const QString file = folder.path() + u"/%1.conf"_s.arg(++number);
        QFile::copy(original, file);
        state.ResumeTiming();
        UserDefaults defaults(file);
        EditHistory history;
        const ShortcutManager manager(defaults, history);
        benchmark::DoNotOptimize(manager.shortcuts().size());
        state.PauseTiming();
        QFile::remove(file);
        state.ResumeTiming();
    }
}
BENCHMARK(openAndLoad)->Unit(benchmark::kMicrosecond);

void editAndSave(benchmark::State& state) {
    const QTemporaryDir folder;
    UserDefaults defaults(folder.path() + u"/velmora.conf"_s);
    defaults.setData(u"SavedShortcuts"_s, encodedList(manyButtons()));
    EditHistory history;
    ShortcutManager manager(defaults, history);
    for (auto _ : state) {
        ShortcutButton button = manager.shortcuts()[500];
        button.title = QString::number(state.iterations());
        manager.updateShortcut(500, button);
    }
}
BENCHMARK(editAndSave)->Unit(benchmark::kMicrosecond);

} // namespace
