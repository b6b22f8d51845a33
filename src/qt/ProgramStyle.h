#pragma once
// The program's style: the desktop's style as it is, except that the "more" button at
// the end of a menu bar or tool bar too short for its entries gets a chevron the
// program draws when the button is first painted.  The style's own picture of it is
// read from several files as each bar is made, though the button is seldom shown.

#include <QProxyStyle>

namespace orbidex {

class ProgramStyle : public QProxyStyle {
public:
    /// Over `base`, which the new style owns.
    explicit ProgramStyle(QStyle* base);

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap icon, const QStyleOption* option = nullptr,
                           const QWidget* widget = nullptr) const override;
};

/// Makes ProgramStyle the application's style, over the style it has.
void UseProgramStyle();

}  // namespace orbidex
