#pragma once

#include <QWidget>
#include <functional>

namespace velmora {

class UserDefaults;

/// The terms and the two answers to them.
class TermsOfServiceView : public QWidget {
    Q_OBJECT
public:
    /// `onAgree` runs after the agreement was stored in `defaults`.
    TermsOfServiceView(UserDefaults& defaults, std::function<void()> onAgree);

    /// The stored Boolean; missing means not agreed. Nothing ever writes false.
    static const QString agreementKey;
};

} // namespace velmora
