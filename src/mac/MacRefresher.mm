#include "mac/MacRefresher.hpp"

#include "mac/MacViews.hpp"

@implementation QVRefresher {
    void (^_refresh)(void);
    BOOL _queued;
}

- (instancetype)initWithRefresh:(void (^)(void))refresh {
    self = [super init];
    if (self) {
        _refresh = refresh;
    }
    return self;
}

- (void)request {
    if (_queued) {
        return;
    }
    _queued = YES;
    __weak QVRefresher* weakSelf = self;
    quorvane::runSoon(^{
      QVRefresher* strongSelf = weakSelf;
      if (strongSelf) {
          strongSelf->_queued = NO;
          strongSelf->_refresh();
      }
    });
}

@end
