#include "foundation/LoginItem.h"

#include "foundation/RegularFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using State = velmora::LoginItem::State;

namespace velmora {
namespace {

struct LoginItemTest : testing::Test {
    void write(const QString& path, const QByteArray& text) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    const QTemporaryDir home;
    const QString folder = home.path() + u"/config/autostart"_s;
    const QString entry = folder + u"/velmora.desktop"_s;
    const LoginItem item{entry, uR"(/opt/a "b" $c\d 50%/velmora)"_s};
};

TEST_F(LoginItemTest, TellsWhatTheEntrySays) {
    EXPECT_TRUE(QDir().mkpath(folder));
    for (const auto& [text, expected] :
         {std::pair("[Desktop Entry]\nType=Application\nHidden=false\n", State::on),
          {"[Desktop Entry]\nHidden = true\r\n", State::switchedOff},
          {"[Desktop Entry]\nX-GNOME-Autostart-enabled=false", State::switchedOff},
          {"[Desktop Entry]\nX-GNOME-Autostart-enabled=true", State::on},
          {"# Hidden=true\n[Desktop Entry]\n[Desktop Action a]\nHidden=true\n", State::on}}) {
        write(entry, text);
        EXPECT_EQ(item.state(), expected) << text;
    }
}

TEST_F(LoginItemTest, IsWrittenAndRemoved) {
    EXPECT_EQ(item.state(), State::off);
    item.setEnabled(false);
    item.setEnabled(true);
    EXPECT_EQ(item.state(), State::on);
    const auto text = RegularFile::bytes(entry, 4096).value_or(QByteArray());
    EXPECT_TRUE(text.contains(R"(Exec="/opt/a \\"b\\" \\$c\\\\d 50%%/velmora")"))
        << text.constData();
    // Checked again, an entry that was switched off elsewhere is written anew.
    write(entry, "[Desktop Entry]\nHidden=true\n");
    item.setEnabled(true);
    EXPECT_EQ(item.state(), State::on);
    item.setEnabled(false);
    EXPECT_EQ(item.state(), State::off);
    EXPECT_TRUE(QDir(folder).removeRecursively());
    write(folder, {});
    EXPECT_THROW(item.setEnabled(true), FileError);
    EXPECT_EQ(item.state(), State::off);
}

} // namespace
} // namespace velmora
