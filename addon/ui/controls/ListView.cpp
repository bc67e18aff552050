// Keeps a list of the host in step with a list model.
#include "addon/ui/controls/ListView.h"

#include "addon/base/HostLock.h"
#include "addon/ui/controls/ListMultiSelectionModel.h"
#include "addon/ui/controls/ListSingleSelectionModel.h"
#include "hostapi/CorHost.h"

#include <algorithm>

namespace corvane::corutiltools {

namespace {

long positionOf(unsigned long index) {
    return static_cast<long>(index) + 1;
}

} // namespace

ListView::ListView(int guiId, SelectionModel_e selectionModel)
    : m_guiId(guiId), m_updatesSuspended(false) {
    init(selectionModel);
}

ListView::ListView(SelectionModel_e selectionModel) : m_updatesSuspended(true) {
    init(selectionModel);
}

ListView::~ListView() {
    if (m_model) {
        m_model->removeObserver(*this);
    }
    m_updatesSuspended = true;
    m_selectionModel.reset();
    if (m_ownsModel) {
        delete m_model;
    }
}

void ListView::init(SelectionModel_e selectionModel) {
    if (selectionModel == SelectionModel_Single) {
        m_selectionModel = std::make_unique<ListSingleSelectionModel>(*this);
    } else {
        m_selectionModel = std::make_unique<ListMultiSelectionModel>(*this);
    }
}

void ListView::setModel(ListModelGenericInterface* model) {
    replaceModel(model, true);
}

void ListView::setModel(ListModelGenericInterface& model) {
    replaceModel(&model, false);
}

void ListView::replaceModel(ListModelGenericInterface* model, bool takesOwnership) {
    if (model == m_model) {
        return;
    }
    if (m_model) {
        m_model->removeObserver(*this);
    }
    if (m_ownsModel) {
        delete m_model;
    }
    m_model = model;
    m_ownsModel = false;
    if (m_model) {
        m_model->addObserver(*this);
    }
    rebuildList();
    // Last, so that the model remains the caller's if showing it throws.
    m_ownsModel = takesOwnership;
}

void ListView::suspendUpdates() {
    if (m_model) {
        m_model->removeObserver(*this);
    }
    m_updatesSuspended = true;
}

void ListView::resumeUpdates() {
    if (!m_updatesSuspended) {
        return;
    }
    if (m_model) {
        m_model->addObserver(*this);
    }
    m_updatesSuspended = false;
    rebuildList();
}

bool ListView::isLive() const {
    return m_guiId != COR_HANDLE_NOT_CREATED && m_model && !m_updatesSuspended;
}

void ListView::rebuildList() {
    if (!isLive()) {
        return;
    }
    const HostLock lock;
    if (m_model->size() == 0) {
        displayEmptyModelMessage();
    } else {
        fillList();
    }
}

void ListView::fillList() {
    CorGUISetSensitivity(m_guiId, TRUE);
    Indices selection;
    m_selectionModel->getSelectedItems(selection);
    CorGUIListDeleteAllItems(m_guiId);
    const unsigned long count = m_model->size();
    for (unsigned long index = 0; index < count; ++index) {
        appendItem(index);
    }
    m_selectionModel->setSelectedItems(selection);
}

void ListView::appendItem(unsigned long index) {
    CorGUIListAppendItem(m_guiId, m_model->displayString(index).c_str());
}

void ListView::displayEmptyModelMessage() {
    if (!isLive()) {
        return;
    }
    const HostLock lock;
    CorGUIListDeleteAllItems(m_guiId);
    CorGUIListAppendItem(m_guiId, m_model->emptyModelMessage().c_str());
    CorGUISetSensitivity(m_guiId, FALSE);
}

void ListView::modelChanged(const ListModelGenericInterface::ChangeInfo_s& change) {
    if (!isLive()) {
        return;
    }
    const HostLock lock;
    switch (change.changeType) {
    case ListModelGenericInterface::ItemsInserted:
        showInserted(change.indices);
        break;
    case ListModelGenericInterface::ItemsRemoved:
        showRemoved(change.indices);
        break;
    case ListModelGenericInterface::ItemsChanged:
        showChanged(change.indices);
        break;
    default:
        rebuildList();
    }
}

void ListView::showInserted(const Indices& indices) {
    // The one line of a list that was empty is the message.
    if (m_model->size() == indices.size() || !areBehindTheList(indices)) {
        rebuildList();
        return;
    }
    for (const unsigned long index : indices) {
        appendItem(index);
    }
}

bool ListView::areBehindTheList(const Indices& indices) const {
    const auto lineCount = static_cast<unsigned long>(CorGUIListGetItemCount(m_guiId));
    return std::all_of(indices.begin(), indices.end(),
                       [lineCount](unsigned long index) { return index >= lineCount; });
}

void ListView::showRemoved(const Indices& indices) {
    if (m_model->size() == 0) {
        displayEmptyModelMessage();
        return;
    }
    Indices selection;
    m_selectionModel->getSelectedItems(selection);
    Indices descending(indices);
    std::sort(descending.rbegin(), descending.rend());
    for (const unsigned long index : descending) {
        CorGUIListDeleteItemAtPos(m_guiId, positionOf(index));
    }
    m_selectionModel->setSelectedItems(selection);
}

void ListView::showChanged(const Indices& indices) {
    Indices selection;
    m_selectionModel->getSelectedItems(selection);
    for (const unsigned long index : indices) {
        CorGUIListReplaceItem(m_guiId, m_model->displayString(index).c_str(), positionOf(index));
    }
    m_selectionModel->setSelectedItems(selection);
}

} // namespace corvane::corutiltools
