#include "mac/MacMenuPanelView.hpp"

#include "base/Subscription.hpp"
#include "mac/MacRefresher.hpp"
#include "mac/MacViewNode.hpp"
#include "ui/MenuModel.hpp"

// unconfirmed: check on a Mac first. The stack view's edge insets and fitting size are not in
// the fact sheet.
@implementation QVMenuPanelView {
    quorvane::MenuModel* _model;
    quorvane::Subscription _changes;
    NSMutableArray* _targets;
}

- (instancetype)initWithModel:(quorvane::MenuModel&)model {
    self = [super initWithFrame:NSZeroRect];
    if (!self) {
        return nil;
    }
    _model = &model;
    _targets = [NSMutableArray array];
    self.orientation = NSUserInterfaceLayoutOrientationVertical;
    self.alignment = NSLayoutAttributeLeading;
    self.edgeInsets = NSEdgeInsetsMake(12, 12, 12, 12);
    [self rebuild];

    __weak QVMenuPanelView* weakSelf = self;
    QVRefresher* refresher = [[QVRefresher alloc] initWithRefresh:^{
      [weakSelf rebuild];
    }];
    _changes = model.subscribe([refresher] { [refresher request]; });
    return self;
}

- (void)rebuild {
    quorvane::fillStack(self, _model->view(), _targets);
    [self setFrameSize:self.fittingSize];
}

@end
