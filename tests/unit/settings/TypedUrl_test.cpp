#include "settings/TypedUrl.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;

TEST(TypedUrl, CompletesAHostNameAndNothingElse) {
    const QString names = u"debian.org debian.org/path?x localhost:443/a bücher.de#x "
                          "a-b.co.uk?x xn--p1ai.рф"_s;
    for (const QString& host : names.split(u' '))
        EXPECT_EQ(typedUrl(host + u'\t'), u"https://"_s + host) << host.toStdString();
    const QString plain =
        u"localhost localhost:8080/x Debian.ORG:80/ 192.168.0.1 [::1] [::1]:8080/a"_s;
    for (const QString& host : plain.split(u' '))
        EXPECT_EQ(typedUrl(host), u"http://"_s + host) << host.toStdString();

    const QString urls = u"https://debian.org/a%20b HTTP://localhost mailto:a@debian.org "
                         "file:///tmp/a tel:911 x: org.example.app:/back spotify:track:1"_s;
    for (const QString& url : urls.split(u' '))
        EXPECT_EQ(typedUrl(u' ' + url), url) << url.toStdString();

    const QString others = u"| |debian|two words|debian.org/a b|/etc|//a.org|a@debian.org|"
                           "debian.org:99999|https://|http:a.org|1.5|a..org|localhost2|://x"_s;
    for (const QString& other : others.split(u'|'))
        EXPECT_EQ(typedUrl(other), std::nullopt) << other.toStdString();
}
