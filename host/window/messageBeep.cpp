#include "messageBeep.h"

#include "CDataExchange.h"

#include <QApplication>

#include <utility>

namespace {

std::function<void()>& beeper() {
    static std::function<void()> current;
    return current;
}

} // namespace

bool MessageBeep(unsigned /*kind*/) {
    const CDataExchange* const exchange = CDataExchange::current();
    if (exchange != nullptr && exchange->HasFailed()) {
        return true;
    }
    if (beeper()) {
        beeper()();
    } else if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        QApplication::beep();
    }
    return true;
}

namespace orvex {

std::function<void()> setBeeper(std::function<void()> newBeeper) {
    return std::exchange(beeper(), std::move(newBeeper));
}

} // namespace orvex
