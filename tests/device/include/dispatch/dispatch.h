#pragma once

#include <stdint.h>

// What the bundle uses of libdispatch, over the stand-in's own main queue.

#define DISPATCH_TIME_NOW 0ull

typedef uint64_t dispatch_time_t;
typedef struct dispatch_queue_s* dispatch_queue_t;
typedef void (^dispatch_block_t)(void);

#ifdef __cplusplus
extern "C" {
#endif

/// `delta` in nanoseconds.
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
dispatch_queue_t dispatch_get_main_queue(void);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);

#ifdef __cplusplus
}
#endif
