// SPDX-License-Identifier: GPL-3.0-or-later
// A narrower tab padding for the one tab bar that needs it, over the application's own style.
#include "style/compacttabs.h"

#include "style/modernmetrics.h"

#include <QApplication>
#include <QProxyStyle>
#include <QTabBar>
#include <QTabWidget>

namespace {

// The application's style with the modern style's tab padding, for a single tab bar.
class CompactTabStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
        const QWidget *widget = nullptr) const override
    {
        const int value = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_TabBarTabHSpace ? qMin(value, ModernMetrics::TabHSpace) : value;
    }
};

} // namespace

void CompactTabs::fit(QTabWidget *tabs)
{
    QTabBar *bar = tabs->tabBar();
    if (bar->sizeHint().width() <= tabs->width())
        return;
    // A second instance of the installed style, made by its name: the application keeps its own,
    // and every other widget is drawn and measured as before. The bar owns it.
    auto *style = new CompactTabStyle(QApplication::style()->name());
    style->setParent(bar);
    bar->setStyle(style);
}
