// The part of a list model that all models share: observers, and telling them of changes.
#pragma once

#include "addon/lists/ListModelInterface.h"
#include "addon/lists/ListModelObserverInterface.h"

#include <set>
#include <string>
#include <vector>

namespace corvane::corutiltools {

// The changing operations do nothing here; a model overrides those that it supports and reports
// what it did through notifyOfChange or notifyOfReset.
template <typename T>
class ListModelAbstract : public ListModelInterface<T> {
public:
    using ChangeInfo_s = ListModelGenericInterface::ChangeInfo_s;

    ListModelAbstract() = default;
    ListModelAbstract(const ListModelAbstract&) = delete;
    ListModelAbstract& operator=(const ListModelAbstract&) = delete;

    void addObserver(ListModelObserverInterface& observer) override {
        if (m_observers.empty()) {
            this->rebuildModel();
        }
        m_observers.insert(&observer);
    }

    void removeObserver(ListModelObserverInterface& observer) override {
        if (m_observers.erase(&observer) != 0 && m_observers.empty()) {
            this->freeMemory();
        }
    }

    unsigned long end() const override { return this->size() + 1; }

    std::string emptyModelMessage() const override { return "No items available."; }

    void setData(unsigned long, const T&) override {}

    unsigned long indexForData(const T& item) const override {
        const unsigned long count = this->size();
        for (unsigned long index = 0; index < count; ++index) {
            if (this->data(index) == item) {
                return index;
            }
        }
        return this->end();
    }

    void insertItem(unsigned long, const T&) override {}
    void insertItems(unsigned long, const std::vector<T>&) override {}
    void removeItem(unsigned long) override {}
    void removeItems(unsigned long, unsigned long) override {}
    void rebuildModel() override {}
    void freeMemory() override {}

protected:
    // Reports one change. It is dropped when nobody observes, and while a reset is still to be
    // delivered, which covers it.
    void notifyOfChange(const ChangeInfo_s& change) {
        if (m_rebuildPending || m_observers.empty()) {
            return;
        }
        m_pendingChanges.push_back(change);
        notifyObserversOfChange();
    }

    // Reports that the whole content was replaced, in place of all that is still to be delivered.
    // Without observers the report stays pending until the next delivery.
    void notifyOfReset() {
        m_rebuildPending = true;
        m_pendingChanges.assign(1, ChangeInfo_s{ListModelGenericInterface::ModelReset, {}});
        if (!m_observers.empty()) {
            notifyObserversOfChange();
        }
    }

    // Delivers what is pending. When an observer throws, nothing stays pending and the exception
    // goes on. Changes that an observer makes meanwhile are delivered after the current ones, so
    // that every observer hears of all of them once and in the same order.
    void notifyObserversOfChange() {
        if (m_deliveryRunning) {
            return;
        }
        m_deliveryRunning = true;
        const DeliveryEnd deliveryEnd{*this};
        do {
            if (m_rebuildPending) {
                this->rebuildModel();
            }
            deliverPendingChanges();
        } while (!m_pendingChanges.empty());
    }

private:
    struct DeliveryEnd {
        ListModelAbstract& model;

        ~DeliveryEnd() {
            model.m_pendingChanges.clear();
            model.m_rebuildPending = false;
            model.m_deliveryRunning = false;
        }
    };

    // Works on copies, since observers may come and go while they are told.
    void deliverPendingChanges() {
        std::vector<ChangeInfo_s> changes;
        changes.swap(m_pendingChanges);
        const std::set<ListModelObserverInterface*> observers = m_observers;
        for (ListModelObserverInterface* const observer : observers) {
            for (const ChangeInfo_s& change : changes) {
                if (m_observers.count(observer) != 0) {
                    observer->modelChanged(change);
                }
            }
        }
    }

    std::set<ListModelObserverInterface*> m_observers;
    bool m_rebuildPending = false;
    bool m_deliveryRunning = false;
    std::vector<ChangeInfo_s> m_pendingChanges;
};

} // namespace corvane::corutiltools
