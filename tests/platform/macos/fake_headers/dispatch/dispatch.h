#pragma once

// The part of the system's dispatcher that the adapter calls, played by threads:
// fake_dispatcher.h tells what it was asked.

struct FakeQueue;
struct FakeAttributes;
using dispatch_queue_t = FakeQueue*;
using dispatch_queue_attr_t = const FakeAttributes*;
using dispatch_function_t = void (*)(void*);

#define DISPATCH_QUEUE_SERIAL nullptr
enum dispatch_qos_class_t { QOS_CLASS_UTILITY = 0x11 };

dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(dispatch_queue_attr_t kind,
                                                              dispatch_qos_class_t quality,
                                                              int priority);
dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attributes);
void dispatch_set_context(dispatch_queue_t queue, void* context);
void dispatch_set_finalizer_f(dispatch_queue_t queue, dispatch_function_t finalizer);
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
void dispatch_release(dispatch_queue_t queue);
