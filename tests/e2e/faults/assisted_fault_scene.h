#pragma once

#include <optional>
#include <vector>

#include "e2e/assistive_client.h"
#include "e2e/faults/fault_scene.h"

namespace vantor {

/// A scene on whose desktop assistive technology tells what the program shows.
class AssistedFaultScene : public FaultScene {
  protected:
    void SetUp() override {
        FaultScene::SetUp();
        const QString bus = desktop_.startSessionBus();
        ASSERT_FALSE(bus.isEmpty()) << "no session bus";
        client_.emplace(bus);
        ASSERT_TRUE(client_->isConnected()) << "no accessibility bus";
    }

    std::vector<AccessibleElement> look() { return client_->walk(QStringLiteral("vantor")); }

  private:
    std::optional<AssistiveClient> client_;
};

}  // namespace vantor
