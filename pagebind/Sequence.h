// The ordered sequence behind the keyed collection and behind a grid's rows: append, access by place, and
// removal anywhere, each in O(log n) or better.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace GleanerSvc {

// Elements stand in slots in the order of their adding. A removal in the middle leaves a gap; gaps are
// counted by a Fenwick tree over words of 64 slots (Fenwick 1994), which finds the n-th element in O(log n),
// and are swept out when they outnumber the elements. Without gaps, and with gaps at the front only, access
// is one addition. Places are 0-based.
template<class T>
class Sequence {
  public:
    using Slot = std::size_t; // where an element stands; stays valid until it is removed or slots move

    std::size_t Size() const { return m_nLive; }
    bool IsEmpty() const { return m_nLive == 0; }

    Slot Append(T oElement) {
        m_aoSlots.push_back(std::move(oElement));
        const Slot nSlot = m_aoSlots.size() - 1;
        if (m_bCounted) CountNewSlot(nSlot);
        ++m_nLive;
        return nSlot;
    }

    T& operator[](std::size_t nPlace) { return m_aoSlots[SlotAt(nPlace)]; }
    const T& operator[](std::size_t nPlace) const { return m_aoSlots[SlotAt(nPlace)]; }
    T& AtSlot(Slot nSlot) { return m_aoSlots[nSlot]; }
    const T& AtSlot(Slot nSlot) const { return m_aoSlots[nSlot]; }

    Slot SlotAt(std::size_t nPlace) const { return m_bCounted ? FindCounted(nPlace) : m_nFirst + nPlace; }

    // Removes the element in a slot. fnMoved(element, new slot) is told of each element that had to move.
    template<class F>
    void EraseSlot(Slot nSlot, F&& fnMoved) {
        m_aoSlots[nSlot] = T();
        --m_nLive;
        if (m_nLive == 0) return Clear();
        if (!m_bCounted && nSlot == m_nFirst) {
            ++m_nFirst;
        } else if (!m_bCounted && nSlot + 1 == m_aoSlots.size()) {
            m_aoSlots.pop_back();
        } else {
            if (!m_bCounted) StartCounting();
            Uncount(nSlot);
        }
        if (m_aoSlots.size() > 2 * m_nLive + Slack) Sweep(fnMoved);
    }

    void EraseAt(std::size_t nPlace) { EraseSlot(SlotAt(nPlace), Ignore); }

    void Clear() {
        m_aoSlots.clear();
        ForgetGaps();
        m_nLive = 0;
    }

    // Cuts or grows the sequence to that many elements.
    void Resize(std::size_t nSize) {
        if (nSize == 0) return Clear();
        while (m_nLive > nSize) EraseAt(m_nLive - 1);
        while (m_nLive < nSize) Append(T());
    }

    // Stable.
    template<class Compare>
    void Sort(std::size_t nFirst, std::size_t nLast, Compare&& fnLess) {
        Sweep(Ignore);
        const auto itFirst = m_aoSlots.begin();
        std::stable_sort(itFirst + static_cast<std::ptrdiff_t>(nFirst),
                         itFirst + static_cast<std::ptrdiff_t>(nLast), std::forward<Compare>(fnLess));
    }

    // Brings elements into another order: place nFirst + n takes the element that stood at place nFirst +
    // anOrder[n]. anOrder names each of its own places once.
    void Permute(std::size_t nFirst, const std::vector<std::size_t>& anOrder) {
        Sweep(Ignore);
        std::vector<T> aoMoved;
        aoMoved.reserve(anOrder.size());
        for (const std::size_t nPlace : anOrder) aoMoved.push_back(std::move(m_aoSlots[nFirst + nPlace]));
        std::move(aoMoved.begin(), aoMoved.end(), m_aoSlots.begin() + static_cast<std::ptrdiff_t>(nFirst));
    }

  private:
    static constexpr std::size_t WordBits = 64;
    static constexpr std::size_t Slack = 1024; // below this many slots gaps are not worth a sweep

    static void Ignore(T& /*oElement*/, Slot /*nNewSlot*/) {}

    bool IsLive(Slot nSlot) const { return (m_anWords[nSlot / WordBits] >> (nSlot % WordBits) & 1U) != 0; }

    void ForgetGaps() {
        m_anWords.clear();
        m_anTree.clear();
        m_bCounted = false;
        m_nFirst = 0;
    }

    // Moves the elements together, so that no gap is left.
    template<class F>
    void Sweep(F&& fnMoved) {
        if (m_bCounted || m_nFirst > 0) {
            Slot nTarget = 0;
            for (Slot nSlot = m_nFirst; nSlot < m_aoSlots.size(); ++nSlot) {
                if (m_bCounted && !IsLive(nSlot)) continue;
                if (nSlot != nTarget) m_aoSlots[nTarget] = std::move(m_aoSlots[nSlot]);
                fnMoved(m_aoSlots[nTarget], nTarget);
                ++nTarget;
            }
            m_aoSlots.resize(nTarget);
            ForgetGaps();
        }
    }

    void StartCounting() {
        const std::size_t nWords = (m_aoSlots.size() + WordBits - 1) / WordBits;
        m_anWords.assign(nWords, 0);
        for (Slot nSlot = m_nFirst; nSlot < m_aoSlots.size(); ++nSlot) SetBit(nSlot);
        m_anTree.assign(nWords + 1, 0);
        for (std::size_t nNode = 1; nNode <= nWords; ++nNode) {
            m_anTree[nNode] += static_cast<std::uint32_t>(std::popcount(m_anWords[nNode - 1]));
            const std::size_t nParent = nNode + LowBit(nNode);
            if (nParent <= nWords) m_anTree[nParent] += m_anTree[nNode];
        }
        m_bCounted = true;
    }

    void SetBit(Slot nSlot) { m_anWords[nSlot / WordBits] |= std::uint64_t{1} << (nSlot % WordBits); }

    static std::size_t LowBit(std::size_t nNode) { return nNode & (~nNode + 1); }

    void CountNewSlot(Slot nSlot) {
        if (nSlot / WordBits >= m_anWords.size()) {
            m_anWords.push_back(0);
            AppendNode();
        }
        SetBit(nSlot);
        for (std::size_t nNode = nSlot / WordBits + 1; nNode < m_anTree.size(); nNode += LowBit(nNode)) {
            ++m_anTree[nNode];
        }
    }

    // A new last node of the tree holds the sum of the nodes that it spans.
    void AppendNode() {
        const std::size_t nNode = m_anTree.size();
        std::uint32_t nSum = 0;
        for (std::size_t nPart = nNode - 1; nPart > nNode - LowBit(nNode); nPart -= LowBit(nPart)) {
            nSum += m_anTree[nPart];
        }
        m_anTree.push_back(nSum);
    }

    void Uncount(Slot nSlot) {
        m_anWords[nSlot / WordBits] &= ~(std::uint64_t{1} << (nSlot % WordBits));
        for (std::size_t nNode = nSlot / WordBits + 1; nNode < m_anTree.size(); nNode += LowBit(nNode)) {
            --m_anTree[nNode];
        }
    }

    Slot FindCounted(std::size_t nPlace) const {
        std::size_t nNode = 0;
        std::size_t nRest = nPlace;
        for (std::size_t nStep = std::bit_floor(m_anTree.size() - 1); nStep > 0; nStep /= 2) {
            if (nNode + nStep < m_anTree.size() && m_anTree[nNode + nStep] <= nRest) {
                nNode += nStep;
                nRest -= m_anTree[nNode];
            }
        }
        std::uint64_t nWord = m_anWords[nNode];
        for (; nRest > 0; --nRest) nWord &= nWord - 1;
        return nNode * WordBits + static_cast<std::size_t>(std::countr_zero(nWord));
    }

    std::vector<T> m_aoSlots;
    std::size_t m_nFirst = 0; // slots before this one are gaps, while nothing is counted
    std::size_t m_nLive = 0;
    bool m_bCounted = false;              // the two tables below are in force
    std::vector<std::uint64_t> m_anWords; // a bit for each slot that holds an element
    std::vector<std::uint32_t> m_anTree;  // Fenwick tree over the words, nodes from 1
};

} // namespace GleanerSvc
