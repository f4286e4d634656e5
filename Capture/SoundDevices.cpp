// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SoundDevices.h"

#include "GstHandle.h"

namespace Zentor::Capture {
namespace {

using ProviderHandle = std::unique_ptr<GstDeviceProvider, ReleaseObject>;

QString NameOf(GstDevice* device)
{
    // The name is not among a device's properties; the element made of it has it.
    const ElementHandle element(
        static_cast<GstElement*>(gst_object_ref_sink(gst_device_create_element(device, nullptr))));
    gchar* name = nullptr;
    g_object_get(element.get(), "device", &name, nullptr);
    const TextHandle owned(name);
    return QString::fromUtf8(name);
}

QString TitleOf(GstDevice* device)
{
    const TextHandle title(gst_device_get_display_name(device));
    return QString::fromUtf8(title.get());
}

} // namespace

std::optional<std::vector<SoundDevice>> DescribeSoundDevices()
{
    const ProviderHandle provider(gst_device_provider_factory_get_by_name("pulsedeviceprovider"));
    if (provider == nullptr || gst_device_provider_start(provider.get()) == FALSE) {
        return std::nullopt;
    }
    std::vector<SoundDevice> found;
    GList* devices = gst_device_provider_get_devices(provider.get());
    for (const GList* entry = devices; entry != nullptr; entry = entry->next) {
        auto* device = static_cast<GstDevice*>(entry->data);
        if (gst_device_has_classes(device, "Audio/Source") != FALSE) {
            found.push_back({NameOf(device), TitleOf(device)});
        }
    }
    g_list_free_full(devices, gst_object_unref);
    gst_device_provider_stop(provider.get());
    return found;
}

std::optional<QStringList> CurrentSoundDevices()
{
    const auto devices = DescribeSoundDevices();
    if (!devices) {
        return std::nullopt;
    }
    QStringList names;
    for (const SoundDevice& device : *devices) {
        names << device.name;
    }
    return names;
}

} // namespace Zentor::Capture
