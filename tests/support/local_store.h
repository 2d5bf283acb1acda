#pragma once

#include <algorithm>
#include <map>
#include <memory>

#include "platform/object_store.h"

namespace rlx::test {

/// A record store in memory with one sort order; `refuseWrites` makes every write fail.
class CLocalStore : public IObjectStore {
public:
    struct Database {
        std::vector<std::pair<RecordId, Record>> rows;
        std::vector<PropertyId> sortOrders;
        std::uint32_t typeId = 0;
        RecordId next = 1;
    };

    bool Create(std::u16string_view name, std::uint32_t typeId, const std::vector<PropertyId>& sortOrders) override {
        if (refuseWrites) return false;
        databases.try_emplace(std::u16string(name), Database{{}, sortOrders, typeId, 1});
        return true;
    }
    std::unique_ptr<IRecordDatabase> Open(std::u16string_view name) override {
        const auto at = databases.find(std::u16string(name));
        return at == databases.end() ? nullptr : std::make_unique<CHandle>(*this, at->second);
    }
    bool Remove(std::u16string_view name) override { return databases.erase(std::u16string(name)), true; }
    bool Transact(const std::function<bool()>& work) override {
        const auto before = databases;
        if (work()) return true;
        databases = before;
        return false;
    }

    bool refuseWrites = false;
    std::size_t writesLeft = SIZE_MAX;
    std::map<std::u16string, Database> databases;

private:
    class CHandle : public IRecordDatabase {
    public:
        CHandle(CLocalStore& store, Database& database) : m_store(store), m_database(database) {}
        std::size_t Count() override { return m_database.rows.size(); }
        std::optional<RecordId> SeekPosition(PropertyId sort, std::size_t position) override {
            const std::vector<RecordId>& order = Order(sort);
            return position < order.size() ? std::optional(order[position]) : std::nullopt;
        }
        std::optional<RecordId> SeekValue(PropertyId sort, std::u16string_view value) override {
            for (const RecordId id : Order(sort)) {
                if (PropertyText(*Read(id), sort) == value) return id;
            }
            return std::nullopt;
        }
        std::optional<std::size_t> PositionOf(PropertyId sort, RecordId record) override {
            const std::vector<RecordId>& order = Order(sort);
            const auto at = std::ranges::find(order, record);
            return at == order.end() ? std::nullopt : std::optional(static_cast<std::size_t>(at - order.begin()));
        }
        std::optional<Record> Read(RecordId record) override {
            const auto at = std::ranges::lower_bound(m_database.rows, record, {}, [](auto& row) { return row.first; });
            if (at != m_database.rows.end() && at->first == record) return at->second;
            return std::nullopt;
        }
        std::optional<RecordId> Add(const Record& record) override {
            if (m_store.refuseWrites || m_store.writesLeft == 0) return std::nullopt;
            --m_store.writesLeft;
            m_database.rows.emplace_back(m_database.next, record);
            return m_database.next++;
        }
        bool Overwrite(RecordId, const Record&) override { return false; }
        bool Delete(RecordId record) override {
            return !m_store.refuseWrites &&
                   std::erase_if(m_database.rows, [&](const auto& row) { return row.first == record; }) > 0;
        }
        std::optional<std::int64_t> LastModified() override { return std::nullopt; }

    private:
        /// Kept until the number of rows or the last row changes: rows are only added and deleted.
        const std::vector<RecordId>& Order(PropertyId sort) {
            const std::pair state(m_database.next, m_database.rows.size());
            if (m_orderState == state) return m_order;
            m_orderState = state;
            m_order.clear();
            for (const auto& row : m_database.rows)
                m_order.push_back(row.first);
            std::ranges::stable_sort(m_order, {}, [&](RecordId id) { return PropertyText(*Read(id), sort); });
            return m_order;
        }

        std::vector<RecordId> m_order;
        std::pair<RecordId, std::size_t> m_orderState;
        CLocalStore& m_store;
        Database& m_database;
    };
};

}  // namespace rlx::test
