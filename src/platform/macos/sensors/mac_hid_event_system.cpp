#include "platform/macos/sensors/mac_hid_event_system.h"

#include <array>
#include <limits>
#include <utility>

#include "platform/macos/frameworks/autorelease_pool.h"

namespace vantor {

namespace {

// No public header has these. What the second gives back differs between descriptions of it and is
// not looked at.
using ClientCreate = CFTypeRef (*)(CFTypeRef allocator);
using ClientSetMatching = void (*)(CFTypeRef client, CFTypeRef matching);
using ClientCopyServices = CFTypeRef (*)(CFTypeRef client);
using ServiceCopyProperty = CFTypeRef (*)(CFTypeRef service, CFTypeRef key);
using ServiceCopyEvent = CFTypeRef (*)(CFTypeRef service, std::int64_t type, std::int32_t options,
                                       std::int64_t timestamp);
using EventGetFloatValue = double (*)(CFTypeRef event, std::int32_t field);

template <class Type>
Type functionOf(HIDEventSystem::Function function) {
    return reinterpret_cast<Type>(function);
}

HIDEventSystem::Object objectOf(CFTypeRef reference) {
    return reinterpret_cast<HIDEventSystem::Object>(reference);
}

CFTypeRef referenceOf(HIDEventSystem::Object object) {
    return reinterpret_cast<CFTypeRef>(object);  // NOLINT(performance-no-int-to-ptr)
}

}  // namespace

MacHIDEventSystem::MacHIDEventSystem(std::shared_ptr<const Frameworks> frameworks)
    : frameworks_(std::move(frameworks)), conversion_(frameworks_->coreFoundation) {
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    canCreate_ = conversion_.canMakeTexts() && cf.retain && cf.numberCreate &&
                 cf.dictionaryCreate && cf.dictionaryKeyCallBacks && cf.dictionaryValueCallBacks;
}

void* MacHIDEventSystem::openLibrary(const char* path) {
    return frameworks_->loader.open(path);
}

void MacHIDEventSystem::closeLibrary(void* library) {
    frameworks_->loader.close(library);
}

HIDEventSystem::Function MacHIDEventSystem::findFunction(void* library, const char* name) {
    return frameworks_->loader.find(library, name);
}

HIDEventSystem::Object MacHIDEventSystem::createClient(const Functions& functions) {
    if (!canCreate_ || !functions.clientCreate) return 0;
    const AutoreleasePool pool(frameworks_->objectiveC);
    return objectOf(functionOf<ClientCreate>(functions.clientCreate)(nullptr));
}

RetainedReference MacHIDEventSystem::makeNumber(std::int32_t number) const {
    return conversion_.own(
        frameworks_->coreFoundation.numberCreate(nullptr, cfNumberSInt32Type, &number));
}

RetainedReference MacHIDEventSystem::makeMatching(std::int32_t usagePage,
                                                  std::int32_t usage) const {
    const CoreFoundationTable& cf = frameworks_->coreFoundation;
    const RetainedReference pageKey = conversion_.makeText("PrimaryUsagePage");
    const RetainedReference usageKey = conversion_.makeText("PrimaryUsage");
    const RetainedReference page = makeNumber(usagePage);
    const RetainedReference number = makeNumber(usage);
    if (!pageKey || !usageKey || !page || !number) return {};
    std::array<const void*, 2> keys{pageKey.get(), usageKey.get()};
    std::array<const void*, 2> values{page.get(), number.get()};
    return conversion_.own(cf.dictionaryCreate(nullptr, keys.data(), values.data(), keys.size(),
                                               cf.dictionaryKeyCallBacks,
                                               cf.dictionaryValueCallBacks));
}

void MacHIDEventSystem::setMatching(const Functions& functions, Object client,
                                    std::int32_t usagePage, std::int32_t usage) {
    if (!canCreate_ || !functions.clientSetMatching || client == 0) return;
    const AutoreleasePool pool(frameworks_->objectiveC);
    if (const RetainedReference matching = makeMatching(usagePage, usage)) {
        functionOf<ClientSetMatching>(functions.clientSetMatching)(referenceOf(client),
                                                                   matching.get());
    }
}

bool MacHIDEventSystem::copyServices(const Functions& functions, Object client,
                                     std::vector<Object>& services) {
    if (!canCreate_ || !functions.clientCopyServices || client == 0) return false;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference list = conversion_.own(
        functionOf<ClientCopyServices>(functions.clientCopyServices)(referenceOf(client)));
    const auto count = conversion_.arrayCount(list.get());
    if (!count) return false;
    for (std::size_t i = 0; i < *count; ++i) {
        if (auto service = conversion_.share(conversion_.arrayEntry(list.get(), i)))
            services.push_back(objectOf(service.giveAway()));
    }
    return true;
}

std::optional<std::string> MacHIDEventSystem::copyProperty(const Functions& functions,
                                                           Object service, const char* key) {
    if (!canCreate_ || !functions.serviceCopyProperty || service == 0) return std::nullopt;
    const AutoreleasePool pool(frameworks_->objectiveC);
    const RetainedReference name = conversion_.makeText(key);
    if (!name) return std::nullopt;
    const RetainedReference value = conversion_.own(functionOf<ServiceCopyProperty>(
        functions.serviceCopyProperty)(referenceOf(service), name.get()));
    return conversion_.text(value.get());
}

HIDEventSystem::Object MacHIDEventSystem::copyEvent(const Functions& functions, Object service,
                                                    std::int64_t type) {
    if (!canCreate_ || !functions.serviceCopyEvent || service == 0) return 0;
    const AutoreleasePool pool(frameworks_->objectiveC);
    return objectOf(
        functionOf<ServiceCopyEvent>(functions.serviceCopyEvent)(referenceOf(service), type, 0, 0));
}

double MacHIDEventSystem::floatValue(const Functions& functions, Object event, std::int32_t field) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    if (!functions.eventGetFloatValue || event == 0) return none;
    return functionOf<EventGetFloatValue>(functions.eventGetFloatValue)(referenceOf(event), field);
}

void MacHIDEventSystem::release(Object object) {
    if (!canCreate_ || object == 0) return;
    const AutoreleasePool pool(frameworks_->objectiveC);
    frameworks_->coreFoundation.release(referenceOf(object));
}

}  // namespace vantor
