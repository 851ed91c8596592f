/// The cell classes that third-party libraries bring to the Settings app. The bundle names them and
/// no more.
#import <Foundation/Foundation.h>

@interface CSColorDisplayCell : NSObject
@end
@implementation CSColorDisplayCell
@end

@interface OrvalenTripleCell : NSObject
@end
@implementation OrvalenTripleCell
@end
