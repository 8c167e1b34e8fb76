#include "settings/TypedUrl.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

TEST(TypedUrl, CompletesAHostNameAndNothingElse) {
    const QString hosts[] = {u"debian.org"_s,     u"debian.org/path?x"_s, u"localhost"_s,
                             u"localhost:8080"_s, u"Debian.ORG:80/"_s,    u"192.168.0.1"_s,
                             u"[::1]:8080/a"_s,   u"bücher.de#x"_s,       u"a-b.co.uk?x"_s,
                             u"xn--p1ai.рф"_s};
    for (const QString& host : hosts)
        EXPECT_EQ(typedUrl(host), u"https://"_s + host) << host.toStdString();
    EXPECT_EQ(typedUrl(u" debian.org\t"_s), u"https://debian.org"_s);

    const QString urls[] = {
        u"https://debian.org/a%20b"_s,
        u"HTTP://localhost"_s,
        u"mailto:a@debian.org"_s,
        u"file:///tmp/a"_s,
        u"tel:911"_s,
        u"x:"_s,
        u"org.example.app:/back"_s,
        u"spotify:track:1"_s};
    for (const QString& url : urls)
        EXPECT_EQ(typedUrl(url + u' '), url) << url.toStdString();

    const QString others[] = {u""_s,
                              u" "_s,
                              u"debian"_s,
                              u"two words"_s,
                              u"debian.org/a b"_s,
                              u"/etc"_s,
                              u"//a.org"_s,
                              u"a@debian.org"_s,
                              u"debian.org:99999"_s,
                              u"https://"_s,
                              u"http:a.org"_s,
                              u"1.5"_s,
                              u"a..org"_s,
                              u"localhost2"_s,
                              u"://x"_s};
    for (const QString& other : others)
        EXPECT_EQ(typedUrl(other), std::nullopt) << other.toStdString();
}

} // namespace
