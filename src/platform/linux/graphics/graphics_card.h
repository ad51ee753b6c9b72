#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/graphics/amdgpu_files.h"
#include "platform/linux/graphics/card_back_off.h"
#include "platform/linux/graphics/card_sensors.h"
#include "platform/linux/graphics/drm_listing.h"
#include "platform/linux/graphics/graphics_figures.h"
#include "platform/linux/graphics/graphics_library.h"
#include "platform/linux/graphics/graphics_names.h"
#include "platform/linux/graphics/runtime_status.h"

namespace vantor {

/// One graphics device: who it is, as far as that can be told without waking it, and what it did at
/// the last pass. Files are kept open while it is awake. One thread at a time.
class GraphicsCard {
  public:
    explicit GraphicsCard(DRMDevice place);

    const DRMDevice& place() const { return place_; }
    void move(DRMDevice place) { place_ = std::move(place); }

    /// Asks for the power state, and lets go of everything when the card sleeps. Before anything
    /// else of a pass.
    bool checkAwake();
    bool isAwake() const { return isAwake_; }

    /// The card does nothing, and is left alone for some seconds so that it can fall asleep.
    bool isResting(double now);
    /// It was asked at `now`.
    void noteAsked(double now);

    /// Finds out what is not known yet. `pciDevices` is a /proc/bus/pci/devices text, for a card
    /// that sleeps; what was seen when it was awake is kept.
    void identify(const GraphicsNames& names, std::string_view pciDevices);

    /// Opens the files anew: drivers bring some later than others.
    void openAnew();

    // How the card's figures are to be had.
    bool needsLibrary() const;
    bool needsClients() const;
    /// The kernel puts it to sleep when it is not used.
    bool managesPower() const { return managesPower_; }

    /// Reads what the card's own files tell and takes in what others do. Of a card that is awake.
    void read(std::optional<double> clientUtilization);
    void take(GraphicsLibrary::Answer answer);

    const std::string& name() const { return name_; }
    bool hasUnifiedMemory() const { return hasUnifiedMemory_; }
    bool isBootDisplay() const { return isBootDisplay_; }
    /// False when it has no node, and its class says that it is no display controller.
    bool isGraphics() const { return isGraphics_; }
    /// Bytes; 0 when never told.
    std::uint64_t memorySize() const { return memorySize_; }
    const GraphicsFigures& figures() const { return figures_; }

  private:
    struct Files {
        CardSensors sensors;
        std::optional<AMDGPUFiles> amdgpu;
    };

    bool checkStillAwake();
    void readIdentity();
    void guessUnifiedMemory();
    bool isUsedByQuestions() const;
    void readTemperature();
    void open();
    void forgetPass();

    DRMDevice place_;
    RuntimeStatus status_;
    bool isAwake_ = false;
    bool managesPower_ = true;
    CardBackOff rest_;
    GraphicsIdentity identity_;
    bool wasSeenAwake_ = false;
    std::string name_;
    bool isNameOfLibrary_ = false;
    bool hasUnifiedMemory_ = false;
    bool isBootDisplay_ = false;
    bool isGraphics_ = true;
    std::uint64_t memorySize_ = 0;
    std::optional<Files> files_;
    GraphicsFigures figures_;
};

}  // namespace vantor
