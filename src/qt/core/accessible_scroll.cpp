#include "qt/core/accessible_scroll.h"

#include "containers/layout.h"
#include "containers/scroll.h"
#include "core/frmMain.h"

#include <QVariant>

#include <algorithm>

namespace quill {
namespace {

class AccessibleScroll : public QAccessibleValueInterface {
public:
    AccessibleScroll(const Attachment& attached, int container)
        : attached_(attached), container_(container) {}

    QVariant currentValue() const override { return Pixels(Alive() ? View().ScrollTop : 0); }
    void setCurrentValue(const QVariant& value) override {
        if (Alive()) ScrollContainer(*attached_.Main, container_, value.toFloat() * TwipsPerPixel);
    }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override {
        if (!Alive()) return 0;
        const float hidden = ContentHeight(*attached_.Main, container_) - View().ContainerFrame.Place.Height;
        return Pixels(std::max(0.0F, hidden));
    }
    QVariant minimumStepSize() const override { return Pixels(WheelStep); }

private:
    static QVariant Pixels(float twips) { return qRound(twips / TwipsPerPixel); }
    bool Alive() const { return attached_.Alive() && IsLive(attached_.Main->Containers, container_); }
    const ContainerView& View() const { return attached_.Main->ConView(container_); }

    const Attachment& attached_;
    int container_;
};

} // namespace

std::unique_ptr<QAccessibleValueInterface> MakeAccessibleScroll(const Attachment& attached, int container) {
    return std::make_unique<AccessibleScroll>(attached, container);
}

} // namespace quill
